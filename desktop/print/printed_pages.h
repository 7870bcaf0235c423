#pragma once

#include <QFont>
#include <QImage>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <cstddef>
#include <vector>

#include "screen/screen.h"

/// Documents and pictures on the pages of a printer, a preview or a PDF. All lengths are in pixels of that device.
namespace veraqua {

/// The lines of a document that stand on one page, in their order, by index.
using PageLines = std::vector<std::size_t>;

/// Breaks a document into pages. Pages on which its table goes on begin with the headings; the headings aren't left
/// behind by the first row; empty lines are dropped where a page ends.
///   heights  of each line
///   room     height of a page, in the same unit; a line that is taller stands on a page of its own
std::vector<PageLines> PagesOf(const PrintedDocument& document, const std::vector<double>& heights, double room);

/// A document as it fits the pages of a device.
struct LaidOutDocument {
    std::vector<QFont> Fonts;     ///< of each line
    std::vector<double> Heights;  ///< of each line
    std::vector<PageLines> Pages;
};

/// Fonts that this computer lacks are replaced by others of their kind. Where a line is wider than the page, all lines
/// of its font become smaller; so does the whole document, as long as it can be read, to stay on one page if it shall.
LaidOutDocument LayOut(const PrintedDocument& document, QPagedPaintDevice& device);

/// Paints all pages, each with its number at the foot. False if the device fails on the way.
bool PaintDocument(const PrintedDocument& document, QPagedPaintDevice& device, QPainter& painter);

/// Paints a picture of `size`, in points of 1/72 inch, below its title; a smaller one if it doesn't fit the page.
bool PaintPicture(const QImage& picture, QSizeF size, const QString& title, QPagedPaintDevice& device,
                  QPainter& painter);

}  // namespace veraqua
