#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <QString>
#include <QWidget>
#include <functional>

#include "screen/screen.h"

/// Printing with a preview, from which the pages go to a printer or into a PDF; that works without any printer, too.
namespace veraqua {

/// Paints pages on a device that `painter` has begun. False if the device fails on the way.
using PagePainting = std::function<bool(QPagedPaintDevice& device, QPainter& painter)>;

/// Shows the preview over a window (null: over none) and waits for what the user makes of it.
///   title  for the preview, the printer's queue and the file name of a PDF
PrintOutcome PrintWithPreview(QWidget* over, const QString& title, const PagePainting& paint);

PrintOutcome PrintDocumentOn(QWidget* over, const PrintedDocument& document);

/// Prints the image of a window.
PrintOutcome PrintWindow(QWidget* window, const QString& title);

}  // namespace veraqua
