#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QSettings>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <algorithm>
#include <functional>

#include "desktop/text.h"
#include "desktop/views/widget_view.h"

namespace veraqua {

namespace {

constexpr int SortRole = Qt::UserRole + 1;
constexpr int RowRole = Qt::UserRole + 2;  ///< place of the row in the record

/// What is selected, as a table of texts with its headings, for other programs.
QString SelectedText(const QTableView& view) {
    QModelIndexList cells = view.selectionModel()->selectedIndexes();
    std::ranges::sort(cells, [](const QModelIndex& a, const QModelIndex& b) {
        return std::pair(a.row(), a.column()) < std::pair(b.row(), b.column());
    });
    QStringList lines{{}};
    for (int column = 0; column < view.model()->columnCount(); ++column)
        lines.back() += (column == 0 ? "" : "\t") + view.model()->headerData(column, Qt::Horizontal).toString();
    lines.back().replace('\n', ' ');
    int row = -1;
    for (const QModelIndex& cell : cells) {
        if (std::exchange(row, cell.row()) == cell.row())
            lines.back() += "\t" + cell.data().toString();
        else
            lines.append(cell.data().toString());
    }
    return lines.join('\n');
}

/// Ctrl+C, by which a table of the toolkit copies one cell only.
class CopyKey : public QObject {
  public:
    explicit CopyKey(QTableView& view) : QObject(&view), view_(&view) { view.installEventFilter(this); }

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress || !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
            return false;
        QApplication::clipboard()->setText(SelectedText(*view_));
        return true;
    }

  private:
    QTableView* view_;
};

/// A heading of several words in two lines, so that a column is hardly wider than its cells.
QString Narrow(const QString& heading) {
    constexpr qsizetype narrowEnough = 7;
    const QString firstLine = heading.section('\n', 0, 0);
    if (firstLine.size() <= narrowEnough) return heading;
    const auto widthBrokenAt = [&firstLine](qsizetype blank) { return std::max(blank, firstLine.size() - blank - 1); };
    qsizetype best = -1;
    for (qsizetype blank = firstLine.indexOf(' '); blank >= 0; blank = firstLine.indexOf(' ', blank + 1))
        if (best < 0 || widthBrokenAt(blank) <= widthBrokenAt(best)) best = blank;
    return best < 0 ? heading : QString(heading).replace(best, 1, '\n');
}

QStandardItem* MakeCell(const QString& text, bool toTheRight) {
    auto* item = new QStandardItem(text);
    item->setTextAlignment((toTheRight ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    return item;
}

/// Dates, codes and numbers need no kerning, and hundreds of cells are laid out sooner without.
QFont WithoutShaping(QFont font) {
    font.setStyleStrategy(QFont::PreferNoShaping);
    return font;
}

/// A table view with what all tables here share: whole rows are selected, sorted by a click on a heading, and copied.
class TableParts {
  public:
    explicit TableParts(QTableView& view) : view_(&view) {
        sorted_.setSourceModel(&cells_);
        sorted_.setSortRole(SortRole);
        view.setModel(&sorted_);
        view.setSelectionBehavior(QAbstractItemView::SelectRows);
        view.setEditTriggers(QAbstractItemView::NoEditTriggers);
        view.setAlternatingRowColors(true);
        view.setShowGrid(false);
        view.setWordWrap(false);
        view.setTabKeyNavigation(false);
        view.setFont(WithoutShaping(view.font()));
        view.verticalHeader()->hide();
        view.verticalHeader()->setDefaultSectionSize(view.fontMetrics().height() + RoomInRow);
        view.horizontalHeader()->setHighlightSections(false);
        view.horizontalHeader()->setSortIndicatorClearable(true);
        view.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        view.setSortingEnabled(true);
        new CopyKey(view);
    }

    QStandardItemModel& Cells() { return cells_; }

    /// Empties the table for `fill`, which puts its cells in. The view looks again when all is there.
    template <class Fill>
    void FillAnew(Fill fill) {
        sorted_.setSourceModel(nullptr);
        cells_.clear();
        fill();
        sorted_.setSourceModel(&cells_);
        Fit();
    }

    /// Each heading stands above the edge of its column that the cells keep to.
    void Head(const QStringList& headings, const std::function<bool(int)>& toTheRight) {
        for (int column = 0; column < headings.size(); ++column)
            cells_.setHorizontalHeaderItem(column, MakeCell(Narrow(headings[column]), toTheRight(column)));
    }

    int RecordRowOf(const QModelIndex& shown) const {
        return shown.isValid() ? shown.siblingAtColumn(0).data(RowRole).toInt() : -1;
    }

    void SelectRecordRow(int row) {
        if (row < 0) return view_->clearSelection();
        view_->selectRow(sorted_.mapFromSource(cells_.index(row, 0)).row());
    }

  private:
    static constexpr int RoomForArrow = 10;
    static constexpr int RoomInRow = 14;

    /// For the arrow of the sorting the toolkit would keep room as wide as the heading is high.
    void Fit() {
        view_->horizontalHeader()->setSortIndicatorShown(false);
        view_->resizeColumnsToContents();
        view_->horizontalHeader()->setSortIndicatorShown(true);
        for (int column = 0; column < cells_.columnCount(); ++column)
            view_->setColumnWidth(column, view_->columnWidth(column) + RoomForArrow);
    }

    QTableView* view_;
    QStandardItemModel cells_;
    QSortFilterProxyModel sorted_;
};

class TableView : public WidgetView<Table, QTableView> {
  public:
    TableView(ControlEntry& entry, Table& table, QTableView& shown, ControlEvents& events)
        : WidgetView(entry, table, shown, events), parts_(shown) {
        shown.setSelectionMode(QAbstractItemView::SingleSelection);
        QObject::connect(&shown, &QTableView::activated, &shown, [this](const QModelIndex& index) {
            Picked([&] { Record().Index = parts_.RecordRowOf(index); });
        });
        // By the keyboard the focus alone makes a row the current one, but doesn't select it.
        QObject::connect(shown.selectionModel(), &QItemSelectionModel::selectionChanged, &shown, [this] {
            const QModelIndexList rows = Shown().selectionModel()->selectedRows();
            if (!IsBringing()) Record().Index = rows.isEmpty() ? -1 : parts_.RecordRowOf(rows.front());
        });
        for (QWidget* place : {static_cast<QWidget*>(&shown), static_cast<QWidget*>(shown.horizontalHeader())}) {
            place->setContextMenuPolicy(Qt::CustomContextMenu);
            QObject::connect(place, &QWidget::customContextMenuRequested, &shown,
                             [this, place](const QPoint& where) { OfferColumns(place->mapToGlobal(where)); });
        }
        shown.horizontalHeader()->setToolTip("A click sorts, a right click chooses the columns.");
    }

  private:
    void BringOwn() override {
        if (!Record().Columns.empty()) RecallColumns();
        QStringList headings;
        for (const Table::Column& column : Record().Columns) headings.append(ToQt(column.Heading));
        if (Record().Rows != filled_ || headings != shownHeadings_) Refill(headings);
        parts_.SelectRecordRow(Record().Index);
    }

    void Refill(const QStringList& headings) {
        filled_ = Record().Rows;
        shownHeadings_ = headings;
        parts_.FillAnew([&] {
            parts_.Head(headings, [this](int column) { return IsNumeric(column); });
            QStandardItemModel& cells = parts_.Cells();
            for (const Table::Row& row : filled_) cells.appendRow(ItemsOf(row, cells.rowCount()));
        });
        HideColumns();
    }

    /// Lets the user choose which columns to see; one always stays.
    void OfferColumns(const QPoint& where) {
        QMenu menu(&Shown());
        std::vector<Table::Column>& columns = Record().Columns;
        const auto seen = std::ranges::count(columns, false, &Table::Column::IsHidden);
        for (Table::Column& column : columns) {
            QAction* entry = menu.addAction(ToQt(column.Heading));
            entry->setCheckable(true);
            entry->setChecked(!column.IsHidden);
            entry->setEnabled(column.IsHidden || seen > 1);
            QObject::connect(entry, &QAction::toggled, &menu, [&column](bool show) { column.IsHidden = !show; });
        }
        menu.exec(where);
        HideColumns();
        QVariantList hidden;
        for (const Table::Column& column : columns) hidden.append(column.IsHidden);
        QSettings().setValue(SettingsKey(), hidden);
    }

    QString SettingsKey() const { return "columns/" + Shown().objectName(); }

    /// As the user had them at the last start.
    void RecallColumns() {
        const QVariantList hidden = QSettings().value(SettingsKey()).toList();
        if (std::exchange(recalled_, true) || hidden.size() != std::ssize(Record().Columns)) return;
        for (qsizetype i = 0; i < hidden.size(); ++i)
            Record().Columns[static_cast<std::size_t>(i)].IsHidden = hidden[i].toBool();
    }

    void HideColumns() {
        for (std::size_t i = 0; i < Record().Columns.size(); ++i)
            Shown().setColumnHidden(static_cast<int>(i), Record().Columns[i].IsHidden);
    }

    bool IsNumeric(int column) const { return Record().Columns[static_cast<std::size_t>(column)].IsNumeric; }

    QList<QStandardItem*> ItemsOf(const Table::Row& row, int place) const {
        QList<QStandardItem*> items;
        for (const Table::Cell& cell : row.Cells) {
            QStandardItem* item = MakeCell(ToQt(cell.Text), IsNumeric(static_cast<int>(items.size())));
            item->setData(cell.SortKey ? QVariant(*cell.SortKey) : QVariant(ToQt(cell.Text)), SortRole);
            item->setData(place, RowRole);
            if (!cell.ToolTip.empty()) item->setToolTip(ToQt(cell.ToolTip));
            if (cell.Background) {
                item->setBackground(QColor(cell.Background->Red, cell.Background->Green, cell.Background->Blue));
                item->setForeground(Qt::black);
            }
            items.append(item);
        }
        return items;
    }

    TableParts parts_;
    bool recalled_ = false;
    std::vector<Table::Row> filled_;
    QStringList shownHeadings_;
};

/// Lines of a text in columns, which are told apart by blanks. A text with other lines is a notice in place of the
/// table.
class ListingView : public WidgetView<TextBox, QTableView> {
  public:
    ListingView(ControlEntry& entry, TextBox& box, QTableView& shown, ControlEvents& events, FormTable& form)
        : WidgetView(entry, box, shown, events), parts_(shown), notice_(&shown) {
        for (const QString& heading : shown.property("headings").toString().split(' ', Qt::SkipEmptyParts))
            headings_.push_back(LabelsOf(heading, form));
        notice_.setAlignment(Qt::AlignCenter);
        notice_.setWordWrap(true);
        notice_.setTextFormat(Qt::PlainText);
    }

  private:
    using Headings = std::vector<const Label*>;

    /// The labels whose captions make one heading; control names have "(2)" where the design has "_2".
    static Headings LabelsOf(const QString& heading, FormTable& form) {
        Headings labels;
        for (const QString& name : heading.split('+'))
            for (const ControlEntry& entry : form.Controls)
                if (WidgetName(entry.Name) == name) labels.push_back(std::get<Label*>(entry.Where));
        return labels;
    }

    void BringOwn() override {
        const QStringList headings = HeadingTexts();
        if (filled_ != Record().Text || headings != shownHeadings_) Refill(headings);
        notice_.setGeometry(Shown().rect());
    }

    QStringList HeadingTexts() const {
        QStringList texts;
        for (const Headings& labels : headings_) {
            QStringList parts;
            for (const Label* label : labels)
                if (!label->Caption.empty()) parts.append(PlainCaption(label->Caption).simplified());
            texts.append(parts.join('\n'));
        }
        return texts;
    }

    void Refill(const QStringList& headings) {
        filled_ = Record().Text;
        shownHeadings_ = headings;
        const QStringList lines = ToQt(filled_).split('\n');
        const bool isTable = std::ranges::all_of(
            lines, [&](const QString& line) { return line.split(' ', Qt::SkipEmptyParts).size() == headings.size(); });
        parts_.FillAnew([&] {
            if (!isTable) return;
            parts_.Head(headings, [](int column) { return column > 0; });
            for (const QString& line : lines) parts_.Cells().appendRow(ItemsOf(line.split(' ', Qt::SkipEmptyParts)));
        });
        QStringList notice;
        for (const QString& line : lines) notice.append(line.trimmed());
        notice_.setText(notice.join('\n').trimmed());
        notice_.setVisible(!isTable);
        Shown().horizontalHeader()->setVisible(isTable);
    }

    /// The first column is the day, which sorts by its year first.
    static QList<QStandardItem*> ItemsOf(const QStringList& texts) {
        QList<QStandardItem*> items;
        for (const QString& text : texts) {
            QStandardItem* item = MakeCell(text, !items.isEmpty());
            bool isNumber = false;
            const double number = text.toDouble(&isNumber);
            item->setData(isNumber ? QVariant(number) : QVariant(text.section('-', 2, 2) + text), SortRole);
            items.append(item);
        }
        return items;
    }

    TableParts parts_;
    QLabel notice_;
    std::vector<Headings> headings_;
    QStringList shownHeadings_;
    std::string filled_;
};

}  // namespace

std::unique_ptr<ControlView> MakeTable(ControlEntry& entry, Table& table, QWidget* widget, ControlEvents& events) {
    return ViewOn<TableView, QTableView>(entry, table, widget, events);
}

std::unique_ptr<ControlView> MakeListing(ControlEntry& entry, TextBox& box, QWidget* widget, FormTable& form,
                                         ControlEvents& events) {
    return ViewOn<ListingView, QTableView>(entry, box, widget, events, form);
}

}  // namespace veraqua
