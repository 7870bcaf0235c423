#include "desktop/print/printing.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeySequence>
#include <QLocale>
#include <QMenuBar>
#include <QPageLayout>
#include <QPalette>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QSaveFile>
#include <QStandardPaths>
#include <QToolBar>
#include <QToolButton>

#include "desktop/print/printed_pages.h"
#include "desktop/text.h"
#include "desktop/theme.h"

namespace veraqua {

namespace {

constexpr QMarginsF Margins(10, 12, 10, 12);  // mm; no printer needs more

constexpr int PdfDotsPerInch = 1200;

/// A window is drawn with so many dots for each of its pixels, so that its small type stays sharp on paper.
constexpr double ImageSharpness = 3;

/// Windows are laid out for screens of this resolution, and shown on paper in that size where it has the room.
constexpr double PointsPerPixel = 72.0 / 96;

/// The default printer's paper, else what is usual here.
QPageLayout UsualPage() {
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    const bool american = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    const QPageSize usual(american ? QPageSize::Letter : QPageSize::A4);
    return {printer.isNull() ? usual : printer.defaultPageSize(), QPageLayout::Portrait, Margins,
            QPageLayout::Millimeter};
}

/// Empty if all went well, else why not.
QString PaintOn(QPagedPaintDevice& device, const PagePainting& paint) {
    QPainter painter;
    if (!painter.begin(&device)) return "The pages can't be sent to the printer or file.";
    if (!paint(device, painter) || !painter.end()) return "The printer or file has failed before the last page.";
    return {};
}

/// Likewise. The file becomes the new one as a whole or stays as it was.
QString WritePdf(const QString& path, const QString& title, const QPageLayout& page, const PagePainting& paint) {
    QSaveFile file(path);
    file.setDirectWriteFallback(true);  // for a file that may be written in a directory that may not
    const auto failure = [&] { return QString("%1 can't be written: %2.").arg(path, file.errorString()); };
    if (!file.open(QIODevice::WriteOnly)) return failure();
    QPdfWriter pdf(&file);
    pdf.setResolution(PdfDotsPerInch);
    pdf.setPageLayout(page);
    pdf.setTitle(title);
    pdf.setCreator(ToQt(ProgramTitle));
    const QString reason = PaintOn(pdf, paint);
    if (!reason.isEmpty()) file.cancelWriting();
    if (!file.commit()) return reason.isEmpty() ? failure() : reason;
    return {};
}

/// A name that every file system takes, where the user keeps documents.
QString ProposedPdf(QString title) {
    for (QChar& character : title)
        if (QString("/\\:*?\"<>|").contains(character)) character = '-';
    return QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)).filePath(title + ".pdf");
}

class Preview {
  public:
    Preview(QWidget* over, const QString& title, const PagePainting& paint)
        : title_(title), paint_(paint), printer_(QPrinter::HighResolution), dialog_(&printer_, over) {
        // Without a printer the dialog offers to print into a file, and wants to know which.
        if (QPrinterInfo::availablePrinterNames().isEmpty()) printer_.setOutputFileName(ProposedPdf(title));
        printer_.setPageLayout(UsualPage());
        printer_.setDocName(title);
        printer_.setCreator(ToQt(ProgramTitle));
        dialog_.setWindowTitle("Print - " + title);
        dialog_.setObjectName("PrintPreview");
        dialog_.resize(900, 760);
        QObject::connect(&dialog_, &QPrintPreviewDialog::paintRequested, &dialog_,
                         [this](QPrinter* printer) { reason_ = PaintOn(*printer, paint_); });
        NameTheWaysOut();
    }

    PrintOutcome Run() {
        const bool done = dialog_.exec() == QDialog::Accepted;
        if (!done || printer_.printerState() == QPrinter::Aborted) return {PrintEnding::Left, {}};
        if (!reason_.isEmpty()) return {PrintEnding::Failed, FromQt(reason_)};
        if (printer_.printerState() == QPrinter::Error) return {PrintEnding::Failed, "The printer reports an error."};
        return {PrintEnding::Printed, {}, FromQt(pdf_)};
    }

  private:
    /// The two ways out, named and with keys.
    void NameTheWaysOut() {
        auto* bar = dialog_.findChild<QToolBar*>();
        if (bar == nullptr) return;
        const auto name = [bar](QAction* action, const QString& text, const QKeySequence& key) {
            action->setIconText(text);
            action->setShortcut(key);
            action->setToolTip(QString("%1 (%2)").arg(text, key.toString(QKeySequence::NativeText)));
            if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action)))
                button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        };
        for (QAction* action : bar->actions())
            if (action->text() == QPrintPreviewDialog::tr("Print")) name(action, "Print...", QKeySequence::Print);
        QAction* save = bar->addAction("Save as PDF");
        save->setObjectName("SaveAsPdf");
        QObject::connect(save, &QAction::triggered, &dialog_, [this] { SavePdf(); });
        name(save, "Save as PDF...", QKeySequence::Save);
    }

    void SavePdf() {
        QFileDialog files(&dialog_, "Save as PDF", ProposedPdf(title_), "PDF files (*.pdf)");
        files.setAcceptMode(QFileDialog::AcceptSave);
        files.setDefaultSuffix("pdf");
        if (files.exec() != QDialog::Accepted || files.selectedFiles().isEmpty()) return;
        pdf_ = files.selectedFiles().constFirst();
        reason_ = WritePdf(pdf_, title_, printer_.pageLayout(), paint_);
        dialog_.accept();
    }

    QString title_;
    const PagePainting& paint_;
    QPrinter printer_;
    QPrintPreviewDialog dialog_;
    QString pdf_;     ///< the file that the user had it saved in
    QString reason_;  ///< why the last painting has failed; empty: it hasn't
};

PagePainting PaintingOf(const PrintedDocument& document) {
    return
        [&document](QPagedPaintDevice& device, QPainter& painter) { return PaintDocument(document, device, painter); };
}

/// Takes what only serves a click out of the image of `window`: buttons, menu and tool bar mean nothing on paper.
void LeaveOutButtons(const QWidget& window, QImage& image) {
    QPainter painter(&image);
    for (const QWidget* part : window.findChildren<const QWidget*>()) {
        const bool clickedOnly = qobject_cast<const QPushButton*>(part) != nullptr ||
                                 qobject_cast<const QMenuBar*>(part) != nullptr ||
                                 qobject_cast<const QToolBar*>(part) != nullptr;
        if (!clickedOnly || !part->isVisibleTo(&window)) continue;
        painter.fillRect(QRect(part->mapTo(&window, QPoint()), part->size()), QApplication::palette().window());
    }
}

/// The image of a window in the light theme: paper is white, and ink is dear.
QImage ImageOf(QWidget& window) {
    QImage image((QSizeF(window.size()) * ImageSharpness).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(ImageSharpness);
    image.fill(Qt::white);
    auto& app = *qobject_cast<QApplication*>(QCoreApplication::instance());
    const bool isDark = QApplication::palette().color(QPalette::Window).lightness() < 128;
    if (isDark) ApplyTheme(app, Theme::Light);
    window.render(&image);
    LeaveOutButtons(window, image);
    if (isDark) ApplyTheme(app, Theme::Dark);
    return image;
}

}  // namespace

PrintOutcome PrintWithPreview(QWidget* over, const QString& title, const PagePainting& paint) {
    return Preview(over, title, paint).Run();
}

PrintOutcome PrintDocumentOn(QWidget* over, const PrintedDocument& document) {
    return PrintWithPreview(over, ToQt(document.Title), PaintingOf(document));
}

PrintOutcome PrintWindow(QWidget* window, const QString& title) {
    const QImage image = ImageOf(*window);
    const QSizeF size = QSizeF(window->size()) * PointsPerPixel;
    return PrintWithPreview(window, title, [&](QPagedPaintDevice& device, QPainter& painter) {
        return PaintPicture(image, size, title, device, painter);
    });
}

}  // namespace veraqua
