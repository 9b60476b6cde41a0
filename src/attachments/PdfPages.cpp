#include "attachments/PdfPages.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace qd8 {

namespace {

int dotsPerInch(const QImage& image)
{
    const int dpi = qRound(image.dotsPerMeterX() * 0.0254);
    return dpi > 0 ? dpi : 96;
}

bool writePages(const QList<QImage>& pages, QIODevice* device)
{
    if (pages.isEmpty())
        return false;
    const int dpi = dotsPerInch(pages.first());
    QPdfWriter pdf(device);
    pdf.setResolution(dpi);
    QPainter painter;
    for (qsizetype i = 0; i < pages.size(); ++i) {
        const QImage& image = pages[i];
        pdf.setPageSize(QPageSize(QSizeF(double(image.width()) / dpi, double(image.height()) / dpi), QPageSize::Inch));
        pdf.setPageMargins({});
        if (i == 0) {
            if (!painter.begin(&pdf))
                return false;
        } else if (!pdf.newPage()) {
            return false;
        }
        painter.drawImage(QRect(0, 0, image.width(), image.height()), image);
    }
    return painter.end();
}

// A PDF held in memory for qpdf, which reads it lazily: the bytes must outlive the QPDF.
struct LoadedPdf {
    QByteArray bytes;
    QPDF pdf;
    explicit LoadedPdf(QByteArray content, const char* name) : bytes(std::move(content))
    {
        pdf.setSuppressWarnings(true);
        pdf.processMemoryFile(name, bytes.constData(), size_t(bytes.size()));
    }
};

} // namespace

bool PdfPages::write(const QList<QImage>& pages, const QString& fileName)
{
    QSaveFile file(fileName);
    return file.open(QIODevice::WriteOnly) && writePages(pages, &file) && file.commit();
}

bool PdfPages::append(const QString& fileName, const QImage& page, QString* error)
{
    const auto fail = [error](const QString& reason) {
        if (error)
            *error = reason;
        return false;
    };
    if (!QFile::exists(fileName))
        return write({page}, fileName) || fail(QStringLiteral("cannot write %1").arg(fileName));
    QFile existing(fileName);
    if (!existing.open(QIODevice::ReadOnly))
        return fail(existing.errorString());
    QByteArray added;
    {
        QBuffer buffer(&added);
        buffer.open(QIODevice::WriteOnly);
        if (!writePages({page}, &buffer))
            return fail(QStringLiteral("cannot draw the picture as a page"));
    }
    QSaveFile out(fileName);
    try {
        LoadedPdf target(existing.readAll(), "document");
        LoadedPdf extra(added, "capture");
        QPDFPageDocumentHelper(target.pdf).addPage(QPDFPageDocumentHelper(extra.pdf).getAllPages().at(0), false);
        QPDFWriter writer(target.pdf);
        writer.setOutputMemory();
        writer.write();
        const std::shared_ptr<Buffer> result = writer.getBufferSharedPointer();
        if (!out.open(QIODevice::WriteOnly)
            || out.write(reinterpret_cast<const char*>(result->getBuffer()), qint64(result->getSize())) != qint64(result->getSize())
            || !out.commit())
            return fail(out.errorString());
    } catch (const std::exception& e) {
        return fail(QStringLiteral("%1 is not a PDF that can take another page (%2)").arg(fileName, QString::fromUtf8(e.what())));
    }
    return true;
}

int PdfPages::count(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    try {
        LoadedPdf pdf(file.readAll(), "document");
        return int(QPDFPageDocumentHelper(pdf.pdf).getAllPages().size());
    } catch (const std::exception&) {
        return -1;
    }
}

} // namespace qd8
