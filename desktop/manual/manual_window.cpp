#include "desktop/manual/manual_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWindow>

#include "desktop/manual/manual_page.h"
#include "desktop/theme.h"
#include "desktop/window_place.h"

namespace veraqua {

namespace {

constexpr const char* WindowName = "manual";

QToolButton* NewButton(const QString& name, Qt::ArrowType arrow, const QKeySequence& key) {
    auto* button = new QToolButton;
    button->setArrowType(arrow);
    button->setToolTip(QString("%1 (%2)").arg(name, key.toString(QKeySequence::NativeText)));
    button->setAccessibleName(name);
    button->setShortcut(key);
    button->setAutoRaise(true);
    return button;
}

class ManualWindow : public QWidget {
  public:
    ManualWindow();

    void GoTo(const QString& anchor) { page_->GoTo(anchor); }
    const ManualPage& Page() const { return *page_; }

    /// Comes up before `over`, open to the user even where that is modal.
    void ComeUp(QWidget* over);

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QWidget* Bar();
    void ListSections();
    void Follow();
    void Search();
    void Step(bool backwards);

    template <class Deed>
    void On(const QKeySequence& key, Deed deed) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, deed);
    }

    QListWidget* contents_ = new QListWidget;
    ManualPage* page_ = new ManualPage(this);
    QLineEdit* words_ = new QLineEdit;
    QLabel* found_ = new QLabel;
};

ManualWindow::ManualWindow() {
    setWindowTitle("Veraqua User's Manual");
    setObjectName(WindowName);
    setAttribute(Qt::WA_DeleteOnClose);
    ListSections();

    auto* right = new QWidget;
    auto* column = new QVBoxLayout(right);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(Bar());
    column->addWidget(page_);
    page_->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    auto* halves = new QSplitter;
    halves->addWidget(contents_);
    halves->addWidget(right);
    halves->setStretchFactor(1, 1);
    halves->setChildrenCollapsible(false);
    auto* all = new QHBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->addWidget(halves);
    resize(1080, 760);

    connect(page_->verticalScrollBar(), &QScrollBar::valueChanged, this, &ManualWindow::Follow);
    On(QKeySequence::Find, [this] {
        words_->setFocus();
        words_->selectAll();
    });
    On(QKeySequence::FindNext, [this] { Step(false); });
    On(QKeySequence::FindPrevious, [this] { Step(true); });
    On(QKeySequence(Qt::Key_Escape), [this] { close(); });
    page_->setFocus();
}

void ManualWindow::ListSections() {
    contents_->setAccessibleName("Contents");
    contents_->setSpacing(2);
    contents_->setMinimumWidth(fontMetrics().averageCharWidth() * 26);
    contents_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (const ManualPage::Section& section : page_->Sections()) {
        auto* item = new QListWidgetItem(section.Level > 2 ? "      " + section.Title : section.Title, contents_);
        item->setData(Qt::UserRole, section.Id);
        QFont font = item->font();
        font.setBold(section.Level == 1);
        item->setFont(font);
    }
    contents_->setCurrentRow(0);
    connect(contents_, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
        if (item != nullptr) page_->GoTo(item->data(Qt::UserRole).toString());
    });
}

QWidget* ManualWindow::Bar() {
    auto* back = NewButton("Back", Qt::LeftArrow, QKeySequence(Qt::ALT | Qt::Key_Left));
    auto* forward = NewButton("Forward", Qt::RightArrow, QKeySequence(Qt::ALT | Qt::Key_Right));
    back->setEnabled(false);
    forward->setEnabled(false);
    connect(back, &QToolButton::clicked, page_, &QTextBrowser::backward);
    connect(forward, &QToolButton::clicked, page_, &QTextBrowser::forward);
    connect(page_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(page_, &QTextBrowser::forwardAvailable, forward, &QWidget::setEnabled);

    words_->setPlaceholderText("Find (Ctrl+F)");
    words_->setAccessibleName("Find in the manual");
    words_->setClearButtonEnabled(true);
    words_->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    connect(words_, &QLineEdit::textChanged, this, &ManualWindow::Search);
    connect(words_, &QLineEdit::returnPressed, this, [this] { Step(false); });
    found_->setProperty("role", "hint");

    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->addWidget(back);
    row->addWidget(forward);
    row->addStretch(1);
    row->addWidget(found_);
    row->addWidget(words_, 2);
    return bar;
}

/// The list of contents follows the text.
void ManualWindow::Follow() {
    const QSignalBlocker quiet(contents_);
    contents_->setCurrentRow(static_cast<int>(page_->SectionInView()));
}

void ManualWindow::Search() {
    const QString words = words_->text().trimmed();
    const int places = page_->Mark(words);
    found_->setText(words.isEmpty() ? "" : places == 1 ? "1 place" : QString("%1 places").arg(places));
    ShowRefused(*words_, !words.isEmpty() && places == 0);
    QTextCursor cursor = page_->textCursor();
    cursor.setPosition(cursor.selectionStart());  // what is being typed may stand where the cursor is
    page_->setTextCursor(cursor);
    page_->FindNext(words, false);
}

void ManualWindow::Step(bool backwards) { page_->FindNext(words_->text().trimmed(), backwards); }

void ManualWindow::ComeUp(QWidget* over) {
    if (!isVisible()) PlaceWindow(*this, WindowName, over);
    winId();  // so that there is a window to give a parent to
    QWindow* parent = over != nullptr ? over->window()->windowHandle() : nullptr;
    if (windowHandle()->transientParent() != parent) {
        // Whether it is blocked by a modal window is decided when it is shown.
        hide();
        windowHandle()->setTransientParent(parent);
    }
    showNormal();
    raise();
    activateWindow();
}

void ManualWindow::closeEvent(QCloseEvent* event) {
    RememberWindow(*this, WindowName);
    QWidget::closeEvent(event);
}

}  // namespace

void ShowManual(QWidget* over, const QString& anchor) {
    static QPointer<ManualWindow> window;
    if (window == nullptr) window = new ManualWindow;
    window->ComeUp(over);
    window->GoTo(anchor);
}

QStringList ManualAnchors() {
    QStringList anchors;
    const ManualPage page(nullptr);  // its sections go with it
    for (const ManualPage::Section& section : page.Sections()) anchors << section.Id;
    return anchors;
}

}  // namespace veraqua
