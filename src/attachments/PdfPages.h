#pragma once

#include <QImage>
#include <QList>
#include <QString>

namespace qd8 {

// The pages of a document's scanned PDF: written from pictures, extended by one picture,
// counted. Pages are pictures at the size they were taken, so a page of a scanned sheet and a
// page of a screen capture each print at their own size.
class PdfPages {
public:
    // The pictures as one PDF, a page each at the first picture's resolution (96 dpi when it
    // has none). False when the file cannot be written.
    static bool write(const QList<QImage>& pages, const QString& fileName);
    // Adds the picture as the PDF's last page, at its own resolution, leaving the pages there
    // untouched; creates the file when there is none. The file is replaced only once the new
    // one is whole, so a failure loses nothing: false, with the reason in *error.
    static bool append(const QString& fileName, const QImage& page, QString* error = nullptr);
    // The pages of a PDF file; -1 when it is not one (or cannot be read).
    static int count(const QString& fileName);
};

} // namespace qd8
