#include "desktop/theme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>
#include <QDBusVariant>
#include <QPalette>
#include <QProxyStyle>
#include <QStyle>

namespace veraqua {

namespace {

/// The desktop is asked once, at the start; a portal that doesn't answer must not hold it up.
constexpr int PortalPatienceMs = 150;

/// Colours of a theme by their place.
struct Colours {
    QColor Window, Base, AlternateBase, Text, Quiet, Button, Border, Accent, OnAccent, Card, Link, Refused;
};

Colours ColoursOf(Theme theme) {
    if (theme == Theme::Dark)
        return {"#1e2226", "#15181b", "#1a1e22", "#e6e9ec", "#a3adb6", "#2b3137",
                "#434c54", "#3a8fd6", "#ffffff", "#262b30", "#7cc0f5", "#ff8a80"};
    return {"#f5f7f8", "#ffffff", "#f3f6f8", "#1c2329", "#58646e", "#ffffff",
            "#c3ccd3", "#1769aa", "#ffffff", "#ffffff", "#1769aa", "#c62828"};
}

QPalette PaletteOf(const Colours& colours) {
    QPalette palette;
    const auto set = [&palette](QPalette::ColorRole role, const QColor& colour) { palette.setColor(role, colour); };
    set(QPalette::Window, colours.Window);
    set(QPalette::WindowText, colours.Text);
    set(QPalette::Base, colours.Base);
    set(QPalette::AlternateBase, colours.AlternateBase);
    set(QPalette::Text, colours.Text);
    set(QPalette::PlaceholderText, colours.Quiet);
    set(QPalette::Button, colours.Button);
    set(QPalette::ButtonText, colours.Text);
    set(QPalette::ToolTipBase, colours.Card);
    set(QPalette::ToolTipText, colours.Text);
    set(QPalette::Highlight, colours.Accent);
    set(QPalette::HighlightedText, colours.OnAccent);
    set(QPalette::Link, colours.Link);
    set(QPalette::LinkVisited, colours.Link);
    set(QPalette::BrightText, colours.Refused);
    set(QPalette::Light, colours.Button.lighter(115));
    set(QPalette::Midlight, colours.Button);
    set(QPalette::Mid, colours.Border);
    set(QPalette::Dark, colours.Border.darker(115));
    set(QPalette::Shadow, QColor(0, 0, 0, 90));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        QColor faded = colours.Text;
        faded.setAlphaF(0.45F);
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

/// Leaves room at both sides of the texts in tables and lists, where a style sheet would hide the cells' colours, and
/// the buttons of messages without pictures, as all others are.
class RoomyStyle : public QProxyStyle {
  public:
    using QProxyStyle::QProxyStyle;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override {
        if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
        return QProxyStyle::styleHint(hint, option, widget, answer);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
        constexpr int margin = 6;
        return metric == PM_FocusFrameHMargin ? margin : QProxyStyle::pixelMetric(metric, option, widget);
    }
};

/// The look of the roles; `%name%` is a colour.
constexpr const char* RoleSheet = R"(
QLabel[role="title"] { font-size: 17pt; font-weight: 600; }
QLabel[role="shadow"] { font-size: 17pt; font-weight: 600; color: %border%; }
QLabel[role="section"] { font-weight: 600; }
QLabel[role="value"], QLineEdit[role="value"] { font-weight: 600; }
QLabel[role="hint"], QLabel[role="unit"] { color: %quiet%; }
QFrame[role="card"] { background: %card%; border: 1px solid %border%; border-radius: 8px; }
QFrame[role="card"] QLabel { background: transparent; }
QLineEdit, QPlainTextEdit, QComboBox, QListWidget, QTableView, QTreeView {
    background: %base%; border: 1px solid %border%; border-radius: 4px; }
QLineEdit { padding: 4px 6px; }
QLineEdit:focus, QComboBox:focus, QPlainTextEdit:focus, QListWidget:focus, QTableView:focus, QTreeView:focus {
    border: 1px solid %accent%; }
QLineEdit:read-only { background: transparent; border: 1px solid transparent; }
QLineEdit:disabled { color: %quiet%; }
QLineEdit[refused="true"], QComboBox[refused="true"] { border: 2px solid %refused%; }
QComboBox { padding: 4px 8px; }
QComboBox:editable { padding: 1px 4px; min-height: 24px; }
QComboBox::drop-down { border: none; width: 22px; }
QComboBox::down-arrow { image: url(:/pictures/arrow_down.svg); width: 12px; height: 12px; }
QRadioButton::indicator { width: 14px; height: 14px; border: 1px solid %quiet%; border-radius: 8px; background: %base%; }
QRadioButton::indicator:checked { background: qradialgradient(cx: 0.5, cy: 0.5, radius: 0.5, fx: 0.5, fy: 0.5,
    stop: 0.55 %accent%, stop: 0.6 %base%); }
QRadioButton::indicator:focus { width: 12px; height: 12px; border: 2px solid %accent%; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid %quiet%; border-radius: 3px; background: %base%; }
QCheckBox::indicator:checked { background: %accent%; image: url(:/pictures/check.svg); }
QCheckBox::indicator:focus { width: 12px; height: 12px; border: 2px solid %accent%; }
QPushButton { padding: 6px 16px; border: 1px solid %border%; border-radius: 4px; background: %button%; }
QPushButton:hover { border: 1px solid %accent%; }
QPushButton:pressed { background: %window%; }
QPushButton:focus { border: 2px solid %accent%; padding: 5px 15px; }
QPushButton:default { background: %accent%; color: %onaccent%; border: 1px solid %accent%; }
QPushButton:default:focus { border: 2px solid %text%; }
QPushButton:disabled { color: %quiet%; background: transparent; border: 1px dashed %border%; }
QPushButton[role="tile"] { padding: 10px; border-radius: 8px; }
QGroupBox { font-weight: 600; border: 1px solid %border%; border-radius: 8px; margin-top: 10px; padding-top: 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; }
QHeaderView::section { background: %window%; border: none; border-bottom: 1px solid %border%; padding: 9px 6px 5px 6px;
    font-weight: 600; }
QHeaderView::up-arrow, QHeaderView::down-arrow { subcontrol-position: top center; width: 9px; height: 9px; }
QTableView { gridline-color: %window%; alternate-background-color: %alternate%; }
QStatusBar { border-top: 1px solid %border%; }
QStatusBar::item { border: none; }
QStatusBar QLabel { padding: 2px 10px; }
QMenuBar { border-bottom: 1px solid %border%; }
QToolTip { color: %text%; background: %card%; border: 1px solid %border%; padding: 4px; }
QProgressBar { border: 1px solid %border%; border-radius: 4px; background: %base%; }
QProgressBar::chunk { background: %accent%; border-radius: 3px; }
QLabel[role="note"] { background: %card%; color: %text%; border: 2px solid %refused%; border-radius: 4px; padding: 4px 8px; }
)";

QString RolesOf(const Colours& colours) {
    QString sheet = RoleSheet;
    const std::initializer_list<std::pair<const char*, QColor>> names = {
        {"%window%", colours.Window}, {"%base%", colours.Base},       {"%alternate%", colours.AlternateBase},
        {"%text%", colours.Text},     {"%quiet%", colours.Quiet},     {"%button%", colours.Button},
        {"%border%", colours.Border}, {"%accent%", colours.Accent},   {"%onaccent%", colours.OnAccent},
        {"%card%", colours.Card},     {"%refused%", colours.Refused},
    };
    for (const auto& [name, colour] : names) sheet.replace(name, colour.name());
    return sheet;
}

/// The portal's "color-scheme": 1 wants dark, 2 light, 0 leaves it open.
std::optional<Theme> ThemeOfPortal() {
    // Without a bus to go to, asking would start one.
    if (qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return std::nullopt;
    QDBusMessage question = QDBusMessage::createMethodCall(
        "org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "Read");
    question << "org.freedesktop.appearance"
             << "color-scheme";
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return std::nullopt;
    const QDBusReply<QDBusVariant> reply = bus.call(question, QDBus::Block, PortalPatienceMs);
    if (!reply.isValid()) return std::nullopt;
    QVariant scheme = reply.value().variant();
    // Wrapped twice by this call of the portal.
    if (scheme.canConvert<QDBusVariant>()) scheme = scheme.value<QDBusVariant>().variant();
    if (scheme.toUInt() == 1) return Theme::Dark;
    return scheme.toUInt() == 2 ? std::optional(Theme::Light) : std::nullopt;
}

}  // namespace

Theme ThemeOfDesktop() {
    if (const std::optional<Theme> asked = ThemeOfPortal()) return *asked;
    const bool darkWindows = QApplication::palette().color(QPalette::Window).lightness() < 128;
    return darkWindows ? Theme::Dark : Theme::Light;
}

void ApplyTheme(QApplication& app, Theme theme) {
    const Colours colours = ColoursOf(theme);
    QApplication::setStyle(new RoomyStyle("Fusion"));
    QApplication::setPalette(PaletteOf(colours));
    app.setStyleSheet(RolesOf(colours));
}

void ShowBackground(QWidget& widget, const std::optional<Colour>& background) {
    QString sheet;
    if (background) {
        const QString colour = QColor(background->Red, background->Green, background->Blue).name();
        sheet = QString("#%1 { background: %2; color: black; } #%1 QLabel { color: black; }")
                    .arg(widget.objectName(), colour);
    }
    if (widget.styleSheet() != sheet) widget.setStyleSheet(sheet);
}

void ShowRefused(QWidget& input, bool refused) {
    if (input.property("refused").toBool() == refused) return;
    input.setProperty("refused", refused);
    input.style()->unpolish(&input);
    input.style()->polish(&input);
}

}  // namespace veraqua
