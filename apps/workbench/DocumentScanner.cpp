#include "DocumentScanner.h"

#include "attachments/PdfPages.h"

#include <cstring>

#include <optional>

#include <sane/sane.h>
#include <sane/saneopts.h>

namespace qd8 {

namespace {

constexpr int ScanResolution = 150;

QString saneText(SANE_Status status)
{
    return QString::fromUtf8(sane_strstatus(status));
}

// One SANE session: sane_init to sane_exit, the device closed before.
class SaneSession {
public:
    SaneSession()
    {
        SANE_Int version = 0;
        const SANE_Status status = sane_init(&version, nullptr);
        if (status != SANE_STATUS_GOOD)
            throw ScanError(QStringLiteral("SANE: ") + saneText(status));
    }
    ~SaneSession()
    {
        if (handle)
            sane_close(handle);
        sane_exit();
    }
    SaneSession(const SaneSession&) = delete;
    SaneSession& operator=(const SaneSession&) = delete;

    void open(const QString& device)
    {
        QByteArray name = device.toUtf8();
        if (name.isEmpty()) {
            const SANE_Device** devices = nullptr;
            if (sane_get_devices(&devices, SANE_TRUE) != SANE_STATUS_GOOD || !devices || !devices[0])
                throw ScanError(QStringLiteral("No scanner was found"));
            name = devices[0]->name;
        }
        const SANE_Status status = sane_open(name.constData(), &handle);
        if (status != SANE_STATUS_GOOD)
            throw ScanError(QStringLiteral("Scanner %1: %2").arg(QString::fromUtf8(name), saneText(status)));
    }

    // Sets a string option to the first of `wanted` the device offers; false when none.
    bool chooseString(const char* option, std::initializer_list<const char*> wanted)
    {
        const auto [index, descriptor] = find(option);
        if (!descriptor || descriptor->type != SANE_TYPE_STRING || descriptor->constraint_type != SANE_CONSTRAINT_STRING_LIST)
            return false;
        for (const char* want : wanted)
            for (const SANE_String_Const* offered = descriptor->constraint.string_list; *offered; ++offered)
                if (qstrcmp(*offered, want) == 0) {
                    const qsizetype length = qstrlen(want);
                    QByteArray value(qMax<qsizetype>(length + 1, descriptor->size), '\0');
                    memcpy(value.data(), want, size_t(length));
                    return sane_control_option(handle, index, SANE_ACTION_SET_VALUE, value.data(), nullptr) == SANE_STATUS_GOOD;
                }
        return false;
    }
    void setInteger(const char* option, int value)
    {
        const auto [index, descriptor] = find(option);
        if (!descriptor || !SANE_OPTION_IS_SETTABLE(descriptor->cap))
            return;
        SANE_Word word = descriptor->type == SANE_TYPE_FIXED ? SANE_FIX(value) : value;
        sane_control_option(handle, index, SANE_ACTION_SET_VALUE, &word, nullptr);
    }

    // One page; nothing when the feeder is empty.
    std::optional<QImage> page()
    {
        SANE_Status status = sane_start(handle);
        if (status == SANE_STATUS_NO_DOCS)
            return std::nullopt;
        if (status != SANE_STATUS_GOOD)
            throw ScanError(saneText(status));
        SANE_Parameters p;
        status = sane_get_parameters(handle, &p);
        if (status != SANE_STATUS_GOOD)
            throw ScanError(saneText(status));
        if (p.depth != 8 || (p.format != SANE_FRAME_GRAY && p.format != SANE_FRAME_RGB))
            throw ScanError(QStringLiteral("The scanner sends a picture format this program does not read"));
        QByteArray data;
        QByteArray buffer(64 * 1024, Qt::Uninitialized);
        for (;;) {
            SANE_Int length = 0;
            status = sane_read(handle, reinterpret_cast<SANE_Byte*>(buffer.data()), SANE_Int(buffer.size()), &length);
            if (status == SANE_STATUS_EOF)
                break;
            if (status != SANE_STATUS_GOOD)
                throw ScanError(saneText(status));
            data.append(buffer.constData(), length);
        }
        const int lines = int(data.size() / p.bytes_per_line);
        const QImage::Format format = p.format == SANE_FRAME_GRAY ? QImage::Format_Grayscale8 : QImage::Format_RGB888;
        QImage image(reinterpret_cast<const uchar*>(data.constData()), p.pixels_per_line, lines, p.bytes_per_line, format);
        QImage page = image.copy();  // owns its pixels once `data` is gone
        page.setDotsPerMeterX(qRound(ScanResolution / 0.0254));
        page.setDotsPerMeterY(qRound(ScanResolution / 0.0254));
        return page;
    }

private:
    std::pair<SANE_Int, const SANE_Option_Descriptor*> find(const char* option) const
    {
        for (SANE_Int i = 1;; ++i) {
            const SANE_Option_Descriptor* d = sane_get_option_descriptor(handle, i);
            if (!d)
                return {0, nullptr};
            if (d->name && qstrcmp(d->name, option) == 0)
                return {i, d};
        }
    }

public:
    SANE_Handle handle = nullptr;
};

} // namespace

QList<QImage> DocumentScanner::scan() const
{
    SaneSession sane;
    sane.open(m_device);
    const bool feeder = sane.chooseString(SANE_NAME_SCAN_SOURCE, {"Automatic Document Feeder", "ADF", "ADF Front"});
    sane.chooseString(SANE_NAME_SCAN_MODE, {SANE_VALUE_SCAN_MODE_GRAY, "Gray"});
    sane.setInteger(SANE_NAME_BIT_DEPTH, 8);
    sane.setInteger(SANE_NAME_SCAN_RESOLUTION, ScanResolution);
    QList<QImage> pages;
    while (const std::optional<QImage> page = sane.page()) {
        pages << *page;
        if (!feeder || pages.size() >= 500)  // the glass holds one page; a feeder that never reports empty
            break;
    }
    sane_cancel(sane.handle);
    if (pages.isEmpty())
        throw ScanError(QStringLiteral("The scanner has no paper"));
    return pages;
}

bool DocumentScanner::writePdf(const QList<QImage>& pages, const QString& fileName)
{
    return PdfPages::write(pages, fileName);
}

int DocumentScanner::pdfPageCount(const QString& fileName)
{
    return PdfPages::count(fileName);
}

} // namespace qd8
