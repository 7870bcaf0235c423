#include "desktop/print/printing.h"

#include <QAction>
#include <QApplication>
#include <QBuffer>
#include <QDialog>
#include <QFile>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QTimer>

#include <gmock/gmock.h>

#include "desktop/print/printed_pages.h"
#include "desktop/text.h"

namespace veraqua {
namespace {

const Font Mono{"Courier New", 9};

/// Two lines of text and a table with two lines of headings and `rows` rows.
PrintedDocument Report(std::size_t rows, bool onOnePage = false) {
    PrintedDocument report{"Days", {{"F", {"Rockwell", 12}}, {"", Mono}, {"D", Mono}, {"-", Mono}}, 2, 2, onOnePage};
    for (std::size_t row = 0; row < rows; ++row) report.Lines.push_back({std::to_string(row), Mono});
    return report;
}

auto PagesOf(const PrintedDocument& report, double room) {
    return PagesOf(report, std::vector<double>(report.Lines.size(), 1), room);
}

int PagesIn(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? static_cast<int>(file.readAll().count("/Type /Page\n")) : -1;
}

/// What the user does next in the window that stands before all others.
void Then(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(20, qApp, [act] { act(dynamic_cast<QDialog&>(*QApplication::activeModalWidget())); });
}

}  // namespace

TEST(Pages, CutNoLineAndRepeatTheHeadings) {
    EXPECT_EQ(PagesOf(Report(5), 6), (std::vector<PageLines>{{0, 1, 2, 3, 4, 5}, {2, 3, 6, 7, 8}}));
    EXPECT_EQ(PagesOf(Report(2), 4.9), (std::vector<PageLines>{{0, 1}, {2, 3, 4, 5}})) << "headings stay with a row";
    EXPECT_EQ(PagesOf(Report(2), {3, 1, 1, 1, 2, 2}, 4.5), (std::vector<PageLines>{{0, 1}, {2, 3, 4}, {2, 3, 5}}));
    EXPECT_EQ(PagesOf(Report(1), 0.5), (std::vector<PageLines>{{0}, {2}, {3}, {2, 3, 4}})) << "no room for anything";
    PrintedDocument report = Report(2);
    report.Lines.push_back({"  ", Mono});
    EXPECT_EQ(PagesOf(report, 6).size(), 1U) << "no page for an empty line";
}

/// In whatever font answers to the name on this computer, and in all others that it has.
TEST(Pages, TakeLinesThatAreTooWideInSmallerType) {
    QBuffer buffer;
    QPdfWriter paper(&buffer);
    QStringList families = QFontDatabase::families();
    families << "Courier New";
    for (const QString& family : families) {
        PrintedDocument report = Report(20);
        for (std::size_t line = 1; line < report.Lines.size(); ++line) report.Lines[line].Face = {FromQt(family), 9};
        report.Lines[7].Text = std::string(160, 'W');
        const LaidOutDocument laid = LayOut(report, paper);
        for (std::size_t line = 0; line < report.Lines.size(); ++line) {
            const QString text = ToQt(report.Lines[line].Text);
            EXPECT_LE(QFontMetricsF(laid.Fonts[line], &paper).horizontalAdvance(text), paper.width()) << FromQt(family);
            EXPECT_EQ(laid.Fonts[line].pointSizeF(), line == 0 ? 12 : laid.Fonts[7].pointSizeF()) << "the whole table";
        }
        EXPECT_LT(laid.Fonts[7].pointSizeF(), 9) << FromQt(family);
    }
}

TEST(Pages, StayOneInSmallerTypeAsLongAsItCanBeRead) {
    QBuffer buffer;
    QPdfWriter paper(&buffer);
    const std::size_t onOne = LayOut(Report(400), paper).Pages[0].size();
    EXPECT_EQ(LayOut(Report(onOne * 5 / 4, true), paper).Pages.size(), 1U) << "9 points become 7";
    EXPECT_EQ(LayOut(Report(onOne * 4, true), paper).Pages, LayOut(Report(onOne * 4), paper).Pages);
    EXPECT_GE(LayOut(Report(onOne * 4, true), paper).Pages.size(), 4U) << "nobody could read it on one";
}

TEST(Printing, SavesAPdfFromThePreviewOrSaysThatItFailed) {
    const QTemporaryDir directory;
    const QString path = directory.filePath("days.pdf");
    const auto save = [&path](QDialog& preview) {
        Then([&](QDialog& files) { files.findChild<QLineEdit*>("fileNameEdit")->setText(path), files.accept(); });
        preview.findChild<QAction*>("SaveAsPdf")->trigger();
    };
    Then(save);
    EXPECT_EQ(PrintWithPreview(nullptr, "Days", [](auto&, auto&) { return false; }).Ending, PrintEnding::Failed);
    EXPECT_EQ(PagesIn(path), -1);
    Then(save);
    const PrintOutcome saved = PrintDocumentOn(nullptr, Report(100));
    EXPECT_EQ(saved.Ending, PrintEnding::Printed);
    EXPECT_EQ(saved.Pdf, FromQt(path));
    EXPECT_EQ(PagesIn(path), 2);
    Then([](QDialog& preview) { preview.reject(); });
    EXPECT_EQ(PrintDocumentOn(nullptr, Report(1)).Ending, PrintEnding::Left);
}

}  // namespace veraqua
