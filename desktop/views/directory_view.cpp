#include <QFileSystemModel>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTreeView>

#include "desktop/text.h"
#include "desktop/views/widget_view.h"

namespace veraqua {

namespace {

/// A tree of the directories; hidden ones too, since a data directory is usually below one.
class DirectoryView : public WidgetView<DirectoryBox, QTreeView> {
  public:
    DirectoryView(ControlEntry& entry, DirectoryBox& box, QTreeView& shown, ControlEvents& events)
        : WidgetView(entry, box, shown, events) {}

  private:
    void Pick(const QModelIndex& at) {
        Picked([&] {
            Record().Path = FromQt(model_->filePath(at));
            if (!Record().Path.ends_with('/')) Record().Path += '/';
        });
    }

    /// The file system is only looked at once the tree is to be seen.
    void Make() {
        model_ = new QFileSystemModel(&Shown());
        model_->setFilter(QDir::AllDirs | QDir::Hidden | QDir::NoDotAndDotDot);
        model_->setRootPath("/");
        Shown().setModel(model_);
        for (int column = 1; column < model_->columnCount(); ++column) Shown().hideColumn(column);
        Shown().header()->hide();
        // By the mouse or by a key: to look into one directory after the other is no deed that could do harm.
        QObject::connect(Shown().selectionModel(), &QItemSelectionModel::currentChanged, &Shown(),
                         [this](const QModelIndex& at) { Pick(at); });
        // Directories are read beside the program; what is above the one picked comes in step by step.
        QObject::connect(model_, &QFileSystemModel::directoryLoaded, &Shown(),
                         [this] { Shown().scrollTo(Shown().currentIndex()); });
    }

    void BringOwn() override {
        if (!Record().Visible) return;
        if (model_ == nullptr) Make();
        const QModelIndex at = model_->index(ToQt(Record().Path));
        if (at == Shown().currentIndex()) return;
        Shown().setCurrentIndex(at);
        Shown().expand(at);
        Shown().scrollTo(at);
    }

    QFileSystemModel* model_ = nullptr;
};

}  // namespace

std::unique_ptr<ControlView> MakeInput(ControlEntry& entry, DirectoryBox& box, QWidget* widget, ControlEvents& events) {
    return ViewOn<DirectoryView, QTreeView>(entry, box, widget, events);
}

}  // namespace veraqua
