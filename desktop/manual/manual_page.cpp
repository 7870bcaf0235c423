#include "desktop/manual/manual_page.h"

#include <QEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextFrame>
#include <algorithm>

namespace veraqua {

namespace {

const QUrl Source("qrc:/manual/manual.html");

constexpr int LongestLine = 760;  ///< in pixels of 96 to the inch
constexpr int LeastMargin = 28;
constexpr int HeadingTop = 14;  ///< where the heading of a section comes to stand
constexpr int FitPauseMs = 80;

/// The look of the text; `%name%` is a colour.
constexpr const char* Sheet = R"(
h1 { font-size: 21pt; color: %accent%; margin-bottom: 4px; }
h2 { font-size: 16pt; color: %accent%; margin-top: 34px; margin-bottom: 6px; }
h3 { font-size: 12.5pt; color: %accent%; margin-top: 22px; margin-bottom: 4px; }
p { margin-top: 7px; margin-bottom: 7px; line-height: 125%; }
p.caption { color: %quiet%; margin-top: 2px; margin-bottom: 14px; }
li { margin-top: 3px; margin-bottom: 3px; line-height: 125%; }
a { color: %link%; text-decoration: none; }
code, pre { background-color: %code%; }
table { border-collapse: collapse; margin-top: 8px; margin-bottom: 12px; }
th { padding: 5px 8px; border-bottom: 2px solid %border%; }
td { padding: 5px 8px; border-bottom: 1px solid %border%; }
)";

QString SheetFor(const QPalette& palette) {
    QString sheet = Sheet;
    const std::initializer_list<std::pair<const char*, QPalette::ColorRole>> names = {
        {"%accent%", QPalette::Link}, {"%link%", QPalette::Link},  {"%quiet%", QPalette::PlaceholderText},
        {"%code%", QPalette::Window}, {"%border%", QPalette::Mid},
    };
    for (const auto& [name, role] : names) sheet.replace(name, palette.color(role).name());
    return sheet;
}

std::vector<ManualPage::Section> SectionsOf(const QTextDocument& document) {
    std::vector<ManualPage::Section> sections;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const int level = block.blockFormat().headingLevel();
        if (level == 0 || block.begin().atEnd()) continue;
        const QStringList anchors = block.begin().fragment().charFormat().anchorNames();
        if (!anchors.isEmpty()) sections.push_back({anchors.front(), block.text(), level, block.position()});
    }
    return sections;
}

}  // namespace

ManualPage::ManualPage(QWidget* parent) : QTextBrowser(parent) {
    setFrameShape(QFrame::NoFrame);
    setAccessibleName("Text of the manual");
    fit_.setSingleShot(true);
    fit_.setInterval(FitPauseMs);
    connect(&fit_, &QTimer::timeout, this, &ManualPage::FitToWidth);
    Read();
}

void ManualPage::Read() {
    document()->setDefaultStyleSheet(SheetFor(palette()));
    setSource(Source);
    reload();
    sections_ = SectionsOf(*document());
    FitToWidth();
}

std::size_t ManualPage::SectionInView() const {
    const int top = cursorForPosition(QPoint(LeastMargin, LeastMargin)).position();
    const auto behind = std::find_if(sections_.begin(), sections_.end(),
                                     [top](const Section& section) { return section.Position > top; });
    return static_cast<std::size_t>(std::max<std::ptrdiff_t>(behind - sections_.begin() - 1, 0));
}

void ManualPage::GoTo(const QString& id) {
    const auto section = std::ranges::find(sections_, id, &Section::Id);
    if (section == sections_.end()) return;
    QUrl place = Source;
    place.setFragment(id);
    setSource(place);
    QTextCursor cursor = textCursor();
    cursor.setPosition(section->Position);  // a search begins here
    setTextCursor(cursor);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top() - HeadingTop);
}

int ManualPage::Mark(const QString& words) {
    QTextCharFormat marked;
    marked.setBackground(QColor("#ffe066"));
    marked.setForeground(Qt::black);
    QList<ExtraSelection> places;
    if (!words.isEmpty())
        for (QTextCursor at = document()->find(words); !at.isNull(); at = document()->find(words, at))
            places.append({at, marked});
    setExtraSelections(places);
    return static_cast<int>(places.size());
}

bool ManualPage::FindNext(const QString& words, bool backwards) {
    const QTextDocument::FindFlags direction = backwards ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    if (words.isEmpty()) return false;
    if (find(words, direction)) return true;
    const QTextCursor before = textCursor();
    moveCursor(backwards ? QTextCursor::End : QTextCursor::Start);
    if (find(words, direction)) return true;
    setTextCursor(before);
    return false;
}

QVariant ManualPage::loadResource(int type, const QUrl& name) {
    QVariant resource = QTextBrowser::loadResource(type, name);
    if (type != QTextDocument::ImageResource) return resource;
    QPixmap& picture = pictures_[name];
    picture.loadFromData(resource.toByteArray());
    return Fitted(picture);
}

void ManualPage::resizeEvent(QResizeEvent* event) {
    QTextBrowser::resizeEvent(event);
    fit_.start();
}

void ManualPage::changeEvent(QEvent* event) {
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) Read();
}

int ManualPage::TextWidth() const {
    return std::clamp(viewport()->width() - 2 * LeastMargin, 1, LongestLine * logicalDpiX() / 96);
}

QPixmap ManualPage::Fitted(const QPixmap& picture) const {
    const double dots = devicePixelRatioF();
    const int width = std::min(picture.width(), static_cast<int>(TextWidth() * dots));
    QPixmap fitted = picture.scaledToWidth(std::max(width, 1), Qt::SmoothTransformation);
    fitted.setDevicePixelRatio(dots);
    return fitted;
}

void ManualPage::FitToWidth() {
    const QTextCursor top = cursorForPosition(QPoint(LeastMargin, 1));
    const int height = cursorRect(top).top();
    QTextFrameFormat frame = document()->rootFrame()->frameFormat();
    frame.setMargin(LeastMargin);
    frame.setRightMargin(std::max(LeastMargin, viewport()->width() - LeastMargin - TextWidth()));
    document()->rootFrame()->setFrameFormat(frame);
    for (const auto& [name, picture] : pictures_)
        document()->addResource(QTextDocument::ImageResource, name, Fitted(picture));
    document()->markContentsDirty(0, document()->characterCount());
    // What was being read stays in view.
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(top).top() - height);
}

}  // namespace veraqua
