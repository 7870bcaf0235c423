#include "desktop/chart/chart_export.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QGraphicsScene>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QScreen>
#include <QStandardPaths>
#include <QSvgGenerator>
#include <algorithm>
#include <array>
#include <optional>

#include "chart/readings.h"
#include "core/base/failure.h"
#include "core/files/files.h"
#include "desktop/chart/chart_plot.h"
#include "desktop/text.h"
#include "reports/report_file.h"
#include "screen/screen.h"

namespace veraqua {

namespace {

constexpr int PixelsPerPixel = 2;

struct FormatName {
    ChartFormat Format;
    const char* Ending;
    const char* Filter;
};

constexpr std::array<FormatName, 3> FormatNames{{{ChartFormat::Png, "png", "Picture (*.png)"},
                                                 {ChartFormat::Svg, "svg", "Scalable picture (*.svg)"},
                                                 {ChartFormat::Csv, "csv", "Table (*.csv)"}}};

const FormatName& NameOf(ChartFormat format) {
    return *std::find_if(FormatNames.begin(), FormatNames.end(),
                         [&](const FormatName& name) { return name.Format == format; });
}

QPalette PaperPalette() {
    QPalette palette;
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Text, "#1c2329");
    return palette;
}

/// Paints the picture on `device`, whose coordinates are those of the screen.
void PaintOn(QPaintDevice& device, const ChartPicture& picture) {
    QGraphicsScene scene;
    // A drawing can't clip lines at the edge of the plot.
    auto* plot = new ChartPlot(CutTo(*picture.Shown, picture.Days), PaperPalette(), QFont());
    scene.addItem(plot);
    const QRectF place(QPointF(), picture.Size);
    plot->setGeometry(place);
    QPainter painter(&device);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, place, place);
}

std::string Png(const ChartPicture& picture) {
    QImage image(picture.Size * PixelsPerPixel, QImage::Format_RGB32);
    image.setDevicePixelRatio(PixelsPerPixel);
    image.fill(Qt::white);
    PaintOn(image, picture);
    QBuffer bytes;
    image.save(&bytes, "PNG");
    return bytes.data().toStdString();
}

std::string Svg(const ChartPicture& picture) {
    QBuffer bytes;
    QSvgGenerator generator;
    generator.setOutputDevice(&bytes);
    generator.setSize(picture.Size);
    generator.setViewBox(QRect(QPoint(), picture.Size));
    // That of the screen: points are as many pixels in the file as where the texts were measured.
    generator.setResolution(static_cast<int>(QGuiApplication::primaryScreen()->logicalDotsPerInch()));
    generator.setTitle(ToQt(picture.Shown->Title));
    PaintOn(generator, picture);
    return bytes.data().toStdString();
}

QString ProposedPath(const ChartContent& chart, const FormatName& format) {
    QString name = chart.Title.empty() ? "Chart" : ToQt(chart.Title);
    for (const char c : {'/', '\\', ':', '|', '\''}) name.replace(c, '-');
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QString("%1/%2.%3").arg(QDir(documents).exists() ? documents : QDir::homePath(), name, format.Ending);
}

/// The file and the format that the user chooses; nothing if they leave.
struct Choice {
    QString Path;
    ChartFormat Format = ChartFormat::Png;
};

std::optional<Choice> ChoiceOf(QWidget* parent, ChartFormat format, const ChartContent& chart) {
    QFileDialog dialog(parent, "Save chart");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    QStringList filters;
    for (const FormatName& name : FormatNames) filters << name.Filter;
    dialog.setNameFilters(filters);
    const auto follow = [&](const QString& filter) {
        dialog.setDefaultSuffix(FormatNames[static_cast<std::size_t>(filters.indexOf(filter))].Ending);
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, follow);
    dialog.selectNameFilter(NameOf(format).Filter);
    follow(NameOf(format).Filter);
    dialog.selectFile(ProposedPath(chart, NameOf(format)));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString path = dialog.selectedFiles().first();
    Choice choice{path, FormatNames[static_cast<std::size_t>(filters.indexOf(dialog.selectedNameFilter()))].Format};
    for (const FormatName& name : FormatNames)
        if (path.endsWith(QString(".") + name.Ending, Qt::CaseInsensitive)) choice.Format = name.Format;
    return choice;
}

}  // namespace

std::string ChartAs(ChartFormat format, const ChartPicture& picture) {
    switch (format) {
        case ChartFormat::Png: return Png(picture);
        case ChartFormat::Svg: return Svg(picture);
        case ChartFormat::Csv: return ChartCsv(*picture.Shown);
    }
    return {};
}

void AskAndSaveChart(QWidget* parent, ChartFormat format, const ChartPicture& picture) {
    const std::optional<Choice> choice = ChoiceOf(parent, format, *picture.Shown);
    if (!choice) return;
    const std::optional<std::string> path = ReportPath(TheScreen(), FromQt(choice->Path), BareName::InWorkingDirectory);
    if (!path) return;
    try {
        files::WriteOutside(*path, ChartAs(choice->Format, picture));
    } catch (const Refusal& refusal) {
        TheScreen().Tell(refusal.what());
    }
}

}  // namespace veraqua
