#include "desktop/panel_area.h"

#include <QEvent>
#include <QMdiSubWindow>
#include <algorithm>

#include "desktop/binder.h"

namespace veraqua {

namespace {

constexpr Qt::WindowFlags OnlyTitle = Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint;

}  // namespace

PanelArea::PanelArea(QMdiArea& area, WindowEvents& events) : area_(&area), events_(&events) {
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area.setBackground(area.palette().window());
    area.viewport()->installEventFilter(this);
}

PanelArea::~PanelArea() {
    for (const Panel& panel : panels_) panel.Frame->setWidget(nullptr);
}

void PanelArea::Bring(const std::vector<std::shared_ptr<FormTable>>& forms) {
    Make(forms);
    for (const Panel& panel : panels_) {
        panel.Frame->setVisible(panel.Form->Shown);
        if (!panel.Form->Shown) continue;
        panel.Bound->Bring();
        panel.Bound->Window().show();
        panel.Frame->setWindowTitle(panel.Bound->Window().windowTitle());
    }
    Arrange();
}

/// A form that was loaded anew has other children than the ones before.
void PanelArea::Make(const std::vector<std::shared_ptr<FormTable>>& forms) {
    const auto same = [](const Panel& panel, const std::shared_ptr<FormTable>& form) { return panel.Form == form; };
    if (std::ranges::equal(panels_, forms, same)) return;
    const std::size_t kept =
        panels_.size() < forms.size() && std::equal(panels_.begin(), panels_.end(), forms.begin(), same)
            ? panels_.size()
            : 0;
    while (panels_.size() > kept) {
        panels_.back().Frame->setWidget(nullptr);
        delete panels_.back().Frame;
        panels_.pop_back();
    }
    for (std::size_t i = kept; i < forms.size(); ++i) {
        Panel panel{forms[i], std::make_unique<BoundWindow>(*forms[i], *events_), nullptr};
        panel.Frame = area_->addSubWindow(&panel.Bound->Window(), OnlyTitle);
        panels_.push_back(std::move(panel));
    }
}

void PanelArea::Arrange() {
    const auto shown = std::ranges::count_if(panels_, [](const Panel& panel) { return panel.Form->Shown; });
    if (shown == 0) return;
    const QSize least = panels_.front().Frame->minimumSizeHint();
    const int width = area_->viewport()->width();
    const int columns = std::clamp(width / std::max(1, least.width()), 1, static_cast<int>(shown));
    const int rows = (static_cast<int>(shown) + columns - 1) / columns;
    const QSize cell(width / columns, std::max(least.height(), area_->viewport()->height() / rows));
    int at = 0;
    for (const Panel& panel : panels_) {
        if (!panel.Form->Shown) continue;
        panel.Frame->setGeometry(at % columns * cell.width(), at / columns * cell.height(), cell.width(),
                                 cell.height());
        ++at;
    }
}

bool PanelArea::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Resize) Arrange();
    return false;
}

}  // namespace veraqua
