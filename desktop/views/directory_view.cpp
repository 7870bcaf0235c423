#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QTreeView>

#include "desktop/text.h"
#include "desktop/views/widget_view.h"

namespace veraqua {

namespace {

/// A tree of the directories; hidden ones too, since a data directory is usually below one.
class DirectoryView : public WidgetView<DirectoryBox, QTreeView> {
  public:
    DirectoryView(ControlEntry& entry, DirectoryBox& box, QTreeView& shown, ControlEvents& events)
        : WidgetView(entry, box, shown, events) {
        QObject::connect(&shown, &QTreeView::clicked, &shown, [this](const QModelIndex& at) { Pick(at); });
        QObject::connect(&shown, &QTreeView::activated, &shown, [this](const QModelIndex& at) { Pick(at); });
    }

  private:
    void Pick(const QModelIndex& at) {
        Picked([&] {
            const QDir directory(model_->filePath(at));
            Record().Path = FromQt(directory.absolutePath());
            if (!Record().Path.ends_with('/')) Record().Path += '/';
            Record().Files.clear();
            for (const QString& name : directory.entryList(QDir::Files | QDir::Hidden, QDir::Name))
                Record().Files.push_back(FromQt(name));
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
