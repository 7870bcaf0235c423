#include "desktop/text.h"

namespace veraqua {

QString PlainCaption(std::string_view caption) { return ToQt(caption).replace("&&", "&"); }

QString WithoutMnemonics(const QString& designed) {
    QString plain;
    for (qsizetype i = 0; i < designed.size(); ++i) {
        if (designed[i] == '&' && ++i >= designed.size()) break;
        plain += designed[i];
    }
    return plain;
}

QString CaptionWithMnemonic(std::string_view caption, const QString& designed) {
    const QString plain = PlainCaption(caption).trimmed();
    if (WithoutMnemonics(designed).trimmed() == plain) return designed.trimmed();
    return QString(plain).replace("&", "&&");
}

}  // namespace veraqua
