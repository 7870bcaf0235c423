#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QProgressBar>
#include <QRegularExpression>
#include <QStatusBar>
#include <QSvgRenderer>

#include "desktop/chart/chart_widget.h"
#include "desktop/text.h"
#include "desktop/theme.h"
#include "desktop/views/drawing_widget.h"
#include "desktop/views/widget_view.h"

namespace veraqua {

namespace {

/// A row of dots leads to the number behind it only where all letters have one width.
QString WithoutLeaders(const QString& caption) {
    static const QRegularExpression leaders("(\\s*\\.){4,}\\s*$");
    return QString(caption).remove(leaders);
}

class LabelView : public WidgetView<Label, QLabel> {
  public:
    LabelView(ControlEntry& entry, Label& label, QLabel& shown, ControlEvents& events)
        : WidgetView(entry, label, shown, events),
          designed_(shown.text()),
          names_(shown.buddy() != nullptr && shown.buddy()->accessibleName().isEmpty()) {
        shown.setTextFormat(Qt::PlainText);
    }

  private:
    /// Only the label of an input knows mnemonics.
    void BringOwn() override {
        const bool named = Shown().buddy() != nullptr;
        const QString plain = WithoutLeaders(PlainCaption(Record().Caption));
        Shown().setText(named ? CaptionWithMnemonic(FromQt(QString(plain).replace("&", "&&")), designed_) : plain);
        if (names_) Shown().buddy()->setAccessibleName(plain.simplified());
    }

    QString designed_;
    bool names_;  ///< the input that it stands for, for those who hear the window
};

class FrameView : public WidgetView<Frame, QWidget> {
  public:
    using WidgetView::WidgetView;

  private:
    void BringOwn() override {
        if (auto* group = qobject_cast<QGroupBox*>(&Shown()))
            group->setTitle(CaptionWithMnemonic(Record().Caption, group->title()));
    }
};

class StatusView : public WidgetView<StatusBar, QStatusBar> {
  public:
    StatusView(ControlEntry& entry, StatusBar& bar, QStatusBar& shown, ControlEvents& events)
        : WidgetView(entry, bar, shown, events) {
        for (QLabel*& panel : panels_) {
            panel = new QLabel(&shown);
            panel->setTextFormat(Qt::PlainText);
            panel->setMinimumWidth(1);  // a long path keeps no window from being small
            shown.addWidget(panel, 1);
        }
    }

  private:
    void BringOwn() override {
        for (std::size_t i = 0; i < panels_.size(); ++i) {
            const QString text = ToQt(Record().Panels[i]).trimmed();
            panels_[i]->setText(text);
            panels_[i]->setVisible(!text.isEmpty());
        }
    }

    std::array<QLabel*, 3> panels_{};
};

class ProgressView : public WidgetView<ProgressBar, QProgressBar> {
  public:
    ProgressView(ControlEntry& entry, ProgressBar& bar, QProgressBar& shown, ControlEvents& events)
        : WidgetView(entry, bar, shown, events) {
        shown.setRange(0, Steps);
        shown.setTextVisible(false);
    }

  private:
    static constexpr int Steps = 1000;

    void BringOwn() override { Shown().setValue(static_cast<int>(Record().Value / 100 * Steps)); }
};

/// A picture that fills its label as far as its shape allows.
class ImageView : public WidgetView<Image, QLabel> {
  public:
    ImageView(ControlEntry& entry, Image& image, QLabel& shown, ControlEvents& events)
        : WidgetView(entry, image, shown, events), picture_(":/pictures/" + shown.property("picture").toString()) {}

  private:
    void BringOwn() override {
        const QSize size = Shown().contentsRect().size();
        const qreal ratio = Shown().devicePixelRatioF();
        if (!Record().Visible || (size == drawn_ && ratio == ratio_)) return;
        drawn_ = size;
        ratio_ = ratio;
        const QSizeF fitted = QSizeF(picture_.defaultSize()).scaled(size, Qt::KeepAspectRatio) * ratio;
        QPixmap pixmap(fitted.toSize());
        if (pixmap.isNull()) return;
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        picture_.render(&painter);
        pixmap.setDevicePixelRatio(ratio);
        Shown().setPixmap(pixmap);
    }

    QSvgRenderer picture_;
    QSize drawn_;
    qreal ratio_ = 0;
};

class DrawingView : public WidgetView<Drawing, DrawingWidget> {
  public:
    using WidgetView::WidgetView;

  private:
    void BringOwn() override { Shown().ShowDrawing(Record()); }
};

class ChartView : public WidgetView<Chart, ChartWidget> {
  public:
    using WidgetView::WidgetView;

  private:
    void BringOwn() override { Shown().ShowChart(Record()); }
};

class MenuEntryView : public ControlView {
  public:
    MenuEntryView(ControlEntry& entry, const MenuItem& item, QAction& action, ControlEvents& events)
        : item_(&item), action_(&action), designed_(action.text()) {
        QObject::connect(&action, &QAction::triggered, &action,
                         [&entry, &events] { events.Happened(entry, Event::Click); });
    }

    void Bring() override {
        action_->setText(CaptionWithMnemonic(item_->Caption, designed_));
        action_->setVisible(item_->Visible);
        action_->setEnabled(item_->Enabled);
    }

  private:
    const MenuItem* item_;
    QAction* action_;
    QString designed_;
};

}  // namespace

void BringControl(const Control& control, QWidget& widget) {
    widget.setVisible(control.Visible);
    widget.setEnabled(control.Enabled);
    if (!control.ToolTip.empty()) widget.setToolTip(ToQt(control.ToolTip));
    ShowBackground(widget, control.Background);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Label& label, QWidget* widget, ControlEvents& events) {
    return ViewOn<LabelView, QLabel>(entry, label, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Frame& frame, QWidget* widget, ControlEvents& events) {
    return ViewOn<FrameView, QWidget>(entry, frame, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, StatusBar& bar, QWidget* widget, ControlEvents& events) {
    return ViewOn<StatusView, QStatusBar>(entry, bar, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, ProgressBar& bar, QWidget* widget,
                                         ControlEvents& events) {
    return ViewOn<ProgressView, QProgressBar>(entry, bar, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Image& image, QWidget* widget, ControlEvents& events) {
    return ViewOn<ImageView, QLabel>(entry, image, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Drawing& drawing, QWidget* widget,
                                         ControlEvents& events) {
    return ViewOn<DrawingView, DrawingWidget>(entry, drawing, widget, events);
}

std::unique_ptr<ControlView> MakeDisplay(ControlEntry& entry, Chart& chart, QWidget* widget, ControlEvents& events) {
    return ViewOn<ChartView, ChartWidget>(entry, chart, widget, events);
}

std::unique_ptr<ControlView> MakeMenuEntry(ControlEntry& entry, MenuItem& item, QObject* action,
                                           ControlEvents& events) {
    const auto* menu = qobject_cast<QMenu*>(action);
    auto* shown = menu != nullptr ? menu->menuAction() : qobject_cast<QAction*>(action);
    return shown == nullptr ? nullptr : std::make_unique<MenuEntryView>(entry, item, *shown, events);
}

}  // namespace veraqua
