#ifndef QUOREL_PDFPAGES_H
#define QUOREL_PDFPAGES_H

#include <QImage>
#include <QString>
#include <QStringList>

// A printed PDF read back with poppler-utils (pdftotext, pdftoppm), as a person would
// read the paper: the text of each page, and a page as a picture.
namespace PdfPages {

// The text of every page, in order; empty when the file is missing or unreadable.
QStringList text(const QString &pdf);
// Page `page` (from 1) at `dpi` dots per inch.
QImage image(const QString &pdf, int page, int dpi = 50);

} // namespace PdfPages

#endif
