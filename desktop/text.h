#pragma once

#include <QString>
#include <string>
#include <string_view>

/// Texts between the records, which hold UTF-8, and the toolkit.
namespace veraqua {

inline QString ToQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

inline std::string FromQt(const QString& text) { return text.toStdString(); }

/// A record's caption as it reads: its "&&" is one "&".
QString PlainCaption(std::string_view caption);

/// A caption of a design as it reads: without the marks of its mnemonics.
QString WithoutMnemonics(const QString& designed);

/// What a widget that knows mnemonics shows for `caption`: `designed` while it reads the same, for its mnemonic, else
/// the caption itself. Blanks at the ends are left out.
QString CaptionWithMnemonic(std::string_view caption, const QString& designed);

}  // namespace veraqua
