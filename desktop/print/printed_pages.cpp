#include "desktop/print/printed_pages.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <algorithm>
#include <map>
#include <numeric>
#include <string_view>
#include <utility>

#include "desktop/text.h"

namespace veraqua {

namespace {

/// Type of fewer points can't be read.
constexpr double LeastPoints = 6;

constexpr double PointsPerInch = 72;

const Font FooterFace{"Arial", 8};
const Font PictureTitleFace{"Arial", 12};

bool IsFixedPitch(std::string_view family) { return family == "Courier New"; }

QFont::StyleHint KindOf(std::string_view family) {
    if (IsFixedPitch(family)) return QFont::TypeWriter;
    return family == "Rockwell" || family == "Times Roman" ? QFont::Serif : QFont::SansSerif;
}

QFont FontOf(const Font& face, double factor = 1) {
    QFont font(ToQt(face.Family));
    font.setStyleHint(KindOf(face.Family));
    font.setFixedPitch(IsFixedPitch(face.Family));
    // A kind is but a hint, and columns don't stand in a font of any other.
    if (IsFixedPitch(face.Family) && !QFontInfo(font).fixedPitch())
        font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
    font.setPointSizeF(face.Points * factor);
    return font;
}

bool IsBlank(const PrintedLine& line) { return line.Text.find_first_not_of(' ') == std::string::npos; }

/// Fills pages line by line.
class PageFiller {
  public:
    PageFiller(const PrintedDocument& document, const std::vector<double>& heights, double room)
        : document_(document), heights_(heights), room_(room), pages_(1) {}

    void Place(std::size_t line) {
        const bool fits = used_ + HeightToPlace(line) <= room_;
        if (!fits && IsBlank(document_.Lines[line])) return;
        if (!fits && !pages_.back().empty()) Turn(line);
        Put(line);
    }

    std::vector<PageLines> Pages() && { return std::move(pages_); }

  private:
    /// The headings stay with the line behind them.
    double HeightToPlace(std::size_t line) const {
        const std::size_t first = document_.HeadingFirst;
        const std::size_t end = first + document_.HeadingCount;
        if (line < first || line >= end) return heights_[line];
        const auto begin = heights_.begin();
        return std::accumulate(begin + static_cast<std::ptrdiff_t>(line),
                               begin + static_cast<std::ptrdiff_t>(std::min(end + 1, heights_.size())), 0.0);
    }

    void Turn(std::size_t next) {
        pages_.emplace_back();
        used_ = 0;
        const std::size_t end = document_.HeadingFirst + document_.HeadingCount;
        if (next < end) return;
        for (std::size_t heading = document_.HeadingFirst; heading < end; ++heading) Put(heading);
    }

    void Put(std::size_t line) {
        pages_.back().push_back(line);
        used_ += heights_[line];
    }

    const PrintedDocument& document_;
    const std::vector<double>& heights_;
    double room_;
    double used_ = 0;
    std::vector<PageLines> pages_;
};

/// Where the pages of a device have their text and their foot.
struct PageAreas {
    QRectF Text;
    QRectF Foot;
};

PageAreas AreasOf(QPagedPaintDevice& device) {
    const double width = device.width();
    const double height = device.height();
    const double foot = 2 * QFontMetricsF(FontOf(FooterFace), &device).height();
    return {{0, 0, width, height - foot}, {0, height - foot, width, foot}};
}

void PaintFoot(const QString& title, std::size_t page, std::size_t pages, QPagedPaintDevice& device,
               QPainter& painter) {
    const QRectF foot = AreasOf(device).Foot;
    painter.setFont(QFont(FontOf(FooterFace), &device));
    painter.drawText(foot, Qt::AlignLeft | Qt::AlignBottom | Qt::TextSingleLine, title);
    painter.drawText(foot, Qt::AlignRight | Qt::AlignBottom | Qt::TextSingleLine,
                     QString("Page %1 of %2").arg(page).arg(pages));
}

using FaceKey = std::pair<std::string, int>;

FaceKey KeyOf(const Font& face) { return {face.Family, face.Points}; }

/// Letters don't shrink in the very proportion, in some fonts far from it: what is made smaller is measured again.
constexpr double Slack = 0.995;
constexpr int MostAttempts = 8;

/// How much smaller `face` has to be for the widest of its lines.
double FactorFor(const Font& face, const PrintedDocument& document, double width, QPagedPaintDevice& device) {
    double factor = 1;
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        const QFontMetricsF metrics(FontOf(face, factor), &device);
        double widest = 0;
        for (const PrintedLine& line : document.Lines)
            if (line.Face == face) widest = std::max(widest, metrics.horizontalAdvance(ToQt(line.Text)));
        if (widest <= width) break;
        factor *= Slack * width / widest;
    }
    return factor;
}

std::map<FaceKey, double> FactorsOf(const PrintedDocument& document, double width, QPagedPaintDevice& device) {
    std::map<FaceKey, double> factors;
    for (const PrintedLine& line : document.Lines)
        if (const auto [factor, isNew] = factors.try_emplace(KeyOf(line.Face), 1); isNew)
            factor->second = FactorFor(line.Face, document, width, device);
    return factors;
}

void Measure(LaidOutDocument& laid, QPagedPaintDevice& device) {
    laid.Heights.clear();
    for (const QFont& font : laid.Fonts) laid.Heights.push_back(QFontMetricsF(font, &device).lineSpacing());
}

/// All fonts become smaller for a page of the height `room`, unless they couldn't be read then.
void FitOnOnePage(LaidOutDocument& laid, double room, QPagedPaintDevice& device) {
    LaidOutDocument smaller = laid;
    for (int attempt = 0; attempt < MostAttempts; ++attempt) {
        const double height = std::accumulate(smaller.Heights.begin(), smaller.Heights.end(), 0.0);
        if (height <= room) {
            laid = std::move(smaller);
            return;
        }
        for (QFont& font : smaller.Fonts) {
            font.setPointSizeF(font.pointSizeF() * Slack * room / height);
            if (font.pointSizeF() < LeastPoints) return;
        }
        Measure(smaller, device);
    }
}

}  // namespace

std::vector<PageLines> PagesOf(const PrintedDocument& document, const std::vector<double>& heights, double room) {
    PageFiller filler(document, heights, room);
    for (std::size_t line = 0; line < document.Lines.size(); ++line) filler.Place(line);
    return std::move(filler).Pages();
}

LaidOutDocument LayOut(const PrintedDocument& document, QPagedPaintDevice& device) {
    const QRectF area = AreasOf(device).Text;
    const std::map<FaceKey, double> factors = FactorsOf(document, area.width(), device);
    LaidOutDocument laid;
    for (const PrintedLine& line : document.Lines)
        laid.Fonts.push_back(FontOf(line.Face, factors.at(KeyOf(line.Face))));
    Measure(laid, device);
    if (document.OnOnePage) FitOnOnePage(laid, area.height(), device);
    laid.Pages = PagesOf(document, laid.Heights, area.height());
    return laid;
}

bool PaintDocument(const PrintedDocument& document, QPagedPaintDevice& device, QPainter& painter) {
    const LaidOutDocument laid = LayOut(document, device);
    for (std::size_t page = 0; page < laid.Pages.size(); ++page) {
        if (page > 0 && !device.newPage()) return false;
        double top = 0;
        for (const std::size_t line : laid.Pages[page]) {
            const QFont font(laid.Fonts[line], &device);
            painter.setFont(font);
            painter.drawText(QPointF(0, top + QFontMetricsF(font).ascent()), ToQt(document.Lines[line].Text));
            top += laid.Heights[line];
        }
        PaintFoot(ToQt(document.Title), page + 1, laid.Pages.size(), device, painter);
    }
    return true;
}

bool PaintPicture(const QImage& picture, QSizeF size, const QString& title, QPagedPaintDevice& device,
                  QPainter& painter) {
    QRectF room = AreasOf(device).Text;
    const QFont font(FontOf(PictureTitleFace), &device);
    painter.setFont(font);
    QRectF heading;  // as many lines as a long title needs
    painter.drawText(room, Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, title, &heading);
    room.setTop(heading.bottom() + QFontMetricsF(font).height());
    const QSizeF natural = size * (device.logicalDpiX() / PointsPerInch);
    const QSizeF fitting = natural.scaled(room.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(room.topLeft(), natural.width() > fitting.width() ? fitting : natural), picture);
    PaintFoot(title, 1, 1, device, painter);
    return true;
}

}  // namespace veraqua
