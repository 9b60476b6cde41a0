#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <stdexcept>

namespace qd8 {

// A scan that could not be made: the device's or SANE's words.
class ScanError : public std::runtime_error {
public:
    explicit ScanError(const QString& message) : std::runtime_error(message.toStdString()), m_message(message) {}
    const QString& message() const { return m_message; }

private:
    QString m_message;
};

// Paper pages through SANE: the first device found (or the one named), every page of its
// feeder when it has one, else the one page on the glass. Runs in the caller's thread.
class DocumentScanner {
public:
    // "" for the first device SANE lists.
    explicit DocumentScanner(const QString& device = {}) : m_device(device) {}

    // The pages scanned, in order; ScanError when nothing could be scanned.
    QList<QImage> scan() const;

    // The pages as one PDF, one page each, the size they were scanned at (the first page's
    // resolution).
    static bool writePdf(const QList<QImage>& pages, const QString& fileName);
    // Pages of a PDF file (its page objects), -1 when it is not one.
    static int pdfPageCount(const QString& fileName);

private:
    QString m_device;
};

} // namespace qd8
