#include "DocumentAttachments.h"

#include "DocumentScanner.h"
#include "attachments/ClientCapture.h"
#include "attachments/HardCopyScan.h"
#include "foundation/Services.h"
#include "widgets/HostedControl.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QScrollArea>
#include <QUrl>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// The pages as they will be kept, one under the other; Keep or Discard.
bool previewDialog(const QList<QImage>& pages, QWidget* parent, int languageId)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(inLanguage(languageId, "ตัวอย่างเอกสารที่สแกน (%1 หน้า)", "Scanned pages (%1)").arg(pages.size()));
    auto* column = new QWidget;
    auto* pagesLayout = new QVBoxLayout(column);
    for (const QImage& page : pages) {
        auto* label = new QLabel;
        label->setPixmap(QPixmap::fromImage(page.scaledToWidth(qMin(page.width(), 600), Qt::SmoothTransformation)));
        label->setFrameShape(QFrame::Box);
        pagesLayout->addWidget(label);
    }
    auto* scroll = new QScrollArea;
    scroll->setWidget(column);
    auto* buttons = new QDialogButtonBox;
    buttons->addButton(inLanguage(languageId, "เก็บ", "Keep"), QDialogButtonBox::AcceptRole);
    buttons->addButton(inLanguage(languageId, "ไม่เก็บ", "Discard"), QDialogButtonBox::RejectRole);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(scroll, 1);
    layout->addWidget(buttons);
    dialog.resize(700, 800);
    return dialog.exec() == QDialog::Accepted;
}

bool isPdf(const QString& suffix)
{
    return suffix.compare(QLatin1String("PDF"), Qt::CaseInsensitive) == 0;
}

// Types a scan can be kept as: PDF, and the picture types Qt writes.
bool scannable(const QString& suffix)
{
    static const QStringList types = {"PDF", "TIF", "TIFF", "JPG", "JPEG", "PNG", "BMP"};
    return types.contains(suffix.toUpper());
}

} // namespace

DocumentAttachments::DocumentAttachments(HostedControl& form, const QString& table, HardCopyScan* strip)
    : QObject(strip)
    , m_form(form)
    , m_table(table)
    , m_strip(strip)
    , m_capture(new ClientCapture(strip->parentWidget()))
{
    m_capture->setObjectName(QStringLiteral("capture"));
    connect(m_capture, &ClientCapture::CaptureSaved, this, [this](const QString& file) {
        tell(QStringLiteral("เก็บ %1 แล้ว").arg(QFileInfo(file).fileName()), QStringLiteral("Kept %1").arg(QFileInfo(file).fileName()));
    });
    strip->setObjectName(QStringLiteral("hardCopy"));
    strip->setChangeFolderActive(true);
    preview = [this](const QList<QImage>& pages) { return previewDialog(pages, &m_form, m_form.LanguageID()); };
    chooseFolder = [this](const QString& current) {
        return QFileDialog::getExistingDirectory(&m_form, m_form.bilingual("เลือกโฟลเดอร์เอกสาร", "Folder of the paper copies"), current);
    };
    connect(strip, &HardCopyScan::ButtonClick, this, &DocumentAttachments::onClick);
    connect(strip, &HardCopyScan::FilesDropped, this, [this](const QStringList& paths) {
        const QStringList kept = copyIn(paths);
        if (!kept.isEmpty())
            tell(QStringLiteral("เก็บ %1 แล้ว").arg(kept.join(QStringLiteral(", "))), QStringLiteral("Kept %1").arg(kept.join(QStringLiteral(", "))));
    });
}

void DocumentAttachments::setDocument(const QString& number, bool editing)
{
    m_number = number.trimmed();
    m_strip->setEditStatus(editing);
    m_capture->setDocumentNumber(m_number);
    m_capture->setAttachmentFolder(folder());
}

QString DocumentAttachments::folder() const
{
    if (!m_strip->ManualFolder().isEmpty())
        return m_strip->ManualFolder();
    return QDir(m_form.AppPath()).filePath(QStringLiteral("HardCopy/") + m_table);
}

QStringList DocumentAttachments::files(const QString& suffix) const
{
    QStringList found;
    if (m_number.isEmpty())
        return found;
    const QDir dir(folder());
    const QString first = dir.filePath(m_number + QLatin1Char('.') + suffix);
    if (QFile::exists(first))
        found << first;
    // Later pages of a picture type: <number>-2.<type>, <number>-3.<type>...
    for (int page = 2; QFile::exists(dir.filePath(QStringLiteral("%1-%2.%3").arg(m_number).arg(page).arg(suffix))); ++page)
        found << dir.filePath(QStringLiteral("%1-%2.%3").arg(m_number).arg(page).arg(suffix));
    return found;
}

void DocumentAttachments::onClick(int index, const QString& suffix)
{
    if (index == HardCopyScan::FolderIndex) {
        QDir().mkpath(folder());
        Services::shell().openUrl(QUrl::fromLocalFile(folder()).toString());
    } else if (index == HardCopyScan::ChangeIndex) {
        const QString chosen = chooseFolder(folder());
        if (!chosen.isEmpty()) {
            m_strip->setManualFolder(chosen);
            m_capture->setAttachmentFolder(chosen);
        }
    } else {
        open(suffix);
    }
}

bool DocumentAttachments::requireNumber() const
{
    if (!m_number.isEmpty())
        return true;
    tell(QStringLiteral("บันทึกเอกสารก่อน แล้วจึงแนบเอกสารสแกน"), QStringLiteral("Save the document first, then attach its paper copy"));
    return false;
}

void DocumentAttachments::open(const QString& suffix)
{
    if (!requireNumber())
        return;
    const QStringList existing = files(suffix);
    if (!existing.isEmpty()) {
        for (const QString& file : existing)
            Services::shell().openUrl(QUrl::fromLocalFile(file).toString());
        return;
    }
    if (!scannable(suffix)) {
        tell(QStringLiteral("ยังไม่มีไฟล์ %1 ของ %2").arg(suffix, m_number), QStringLiteral("There is no %1 file of %2 yet").arg(suffix, m_number));
        return;
    }
    if (Services::messages().question(title(),
            m_form.bilingual("ยังไม่มีไฟล์ %1 ของ %2 ต้องการสแกนเอกสารหรือไม่", "There is no %1 file of %2 yet. Scan the paper copy now?")
                .arg(suffix, m_number)))
        scanInto(suffix);
}

bool DocumentAttachments::scanInto(const QString& suffix)
{
    if (!requireNumber())
        return false;
    QList<QImage> pages;
    try {
        pages = DocumentScanner(scannerDevice).scan();
    } catch (const ScanError& error) {
        tell(QStringLiteral("สแกนไม่ได้: ") + error.message(), QStringLiteral("Could not scan: ") + error.message());
        return false;
    }
    if (!preview(pages))
        return false;
    const QDir dir(folder());
    dir.mkpath(QStringLiteral("."));
    bool written = true;
    if (isPdf(suffix)) {
        written = DocumentScanner::writePdf(pages, dir.filePath(m_number + QLatin1Char('.') + suffix));
    } else {
        for (qsizetype i = 0; i < pages.size() && written; ++i) {
            const QString name = i == 0 ? m_number : QStringLiteral("%1-%2").arg(m_number).arg(i + 1);
            written = pages[i].save(dir.filePath(name + QLatin1Char('.') + suffix), suffix.toUpper().toLatin1().constData());
        }
    }
    if (!written)
        tell(QStringLiteral("เขียนไฟล์ในโฟลเดอร์ %1 ไม่ได้").arg(dir.path()), QStringLiteral("Could not write in the folder %1").arg(dir.path()));
    return written;
}

QStringList DocumentAttachments::copyIn(const QStringList& paths)
{
    QStringList kept;
    if (!requireNumber())
        return kept;
    const QDir dir(folder());
    dir.mkpath(QStringLiteral("."));
    for (const QString& path : paths) {
        // The first file of a type takes the document's number, the next ones a page number.
        const QString name = ClientCapture::freeFileName(dir.path(), m_number, QFileInfo(path).suffix().toUpper());
        if (QFile::copy(path, name))
            kept << QFileInfo(name).fileName();
        else
            tell(QStringLiteral("คัดลอก %1 ไม่ได้").arg(path), QStringLiteral("Could not copy %1").arg(path));
    }
    return kept;
}

void DocumentAttachments::tell(const QString& thai, const QString& english) const
{
    Services::messages().information(title(), inLanguage(m_form.LanguageID(), thai, english));
}

QString DocumentAttachments::title() const
{
    return m_form.bilingual("เอกสารสแกน", "Paper copies");
}

} // namespace qd8
