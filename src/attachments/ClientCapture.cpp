#include "attachments/ClientCapture.h"

#include "attachments/CropDialog_p.h"
#include "attachments/PdfPages.h"
#include "foundation/Services.h"

#include <QCamera>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QFile>
#include <QHBoxLayout>
#include <QImageCapture>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QMenu>
#include <QPixmap>
#include <QScreen>
#include <QTimer>
#include <QToolButton>

namespace qd8 {

namespace {

// How long a camera may take to start and give its picture.
constexpr int CameraWaitMs = 10000;

} // namespace

class ClientCapture::Private {
public:
    QString folder;
    QString number;
    QString format = QStringLiteral("PNG");
    QToolButton* button = nullptr;
    QAction* screen = nullptr;
    QAction* window = nullptr;
    QAction* camera = nullptr;
    QAction* asPdf = nullptr;  // checked: SaveFormat "PDF"
};

ClientCapture::ClientCapture(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>())
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    d->button = new QToolButton(this);
    d->button->setObjectName(QStringLiteral("captureButton"));
    d->button->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(d->button);
    d->window = menu->addAction(QString(), this, [this] { CaptureWindow(); });
    d->screen = menu->addAction(QString(), this, [this] { CaptureScreen(); });
    d->camera = menu->addAction(QString(), this, [this] { CaptureCamera(); });
    menu->addSeparator();
    d->asPdf = menu->addAction(QString());
    d->asPdf->setCheckable(true);
    connect(d->asPdf, &QAction::toggled, this, [this](bool pdf) { d->format = pdf ? QStringLiteral("PDF") : QStringLiteral("PNG"); });
    d->button->setMenu(menu);
    row->addWidget(d->button);
    crop = [this](const QImage& picture) { return CropDialog::ask(picture, LanguageID(), this); };
    changeEvent(nullptr);
}

ClientCapture::~ClientCapture() = default;

QString ClientCapture::AttachmentFolder() const { return d->folder; }
void ClientCapture::setAttachmentFolder(const QString& folder) { d->folder = folder; }
QString ClientCapture::DocumentNumber() const { return d->number; }
void ClientCapture::setDocumentNumber(const QString& number) { d->number = number.trimmed(); }
QString ClientCapture::SaveFormat() const { return d->format; }
void ClientCapture::setSaveFormat(const QString& format)
{
    d->format = format.trimmed().toUpper();
    QSignalBlocker quiet(d->asPdf);
    d->asPdf->setChecked(d->format == QLatin1String("PDF"));
}
QToolButton* ClientCapture::button() const { return d->button; }

void ClientCapture::changeEvent(QEvent* event)
{
    if (!event || event->type() == QEvent::LanguageChange) {
        d->button->setText(bilingual("จับภาพ", "Capture"));
        d->button->setAccessibleName(bilingual("จับภาพเก็บกับเอกสาร", "Capture a picture for the document"));
        d->window->setText(bilingual("หน้าต่างนี้", "This window"));
        d->screen->setText(bilingual("ทั้งหน้าจอ", "Whole screen"));
        d->camera->setText(bilingual("กล้อง", "Camera"));
        d->asPdf->setText(bilingual("เก็บเป็นหน้าใหม่ของ PDF เอกสารสแกน", "Keep as a new page of the scanned PDF"));
    }
    if (event)
        HostedControl::changeEvent(event);
}

void ClientCapture::tell(const QString& text) const
{
    Services::messages().information(bilingual("จับภาพ", "Capture"), text);
}

QString ClientCapture::CaptureScreen()
{
    QScreen* on = screen();
    const QPixmap picture = on ? on->grabWindow(0) : QPixmap();
    if (picture.isNull()) {
        tell(bilingual("เดสก์ท็อปนี้ไม่ให้จับภาพหน้าจอ ลองจับภาพหน้าต่างแทน",
            "This desktop does not let programs take a picture of the screen; capture a window instead"));
        return {};
    }
    return keep(picture.toImage());
}

QString ClientCapture::CaptureWindow(QWidget* target)
{
    QWidget* shown = target ? target->window() : window();
    // The window's own drawing: works where the desktop refuses screen pictures.
    return keep(shown->grab().toImage());
}

bool ClientCapture::HasCamera()
{
    return !QMediaDevices::videoInputs().isEmpty();
}

QString ClientCapture::CaptureCamera()
{
    if (!HasCamera()) {
        tell(bilingual("ไม่พบกล้องในเครื่องนี้ จับภาพหน้าจอหรือหน้าต่างแทนได้",
            "There is no camera on this computer; you can capture the screen or a window instead"));
        return {};
    }
    QCamera camera(QMediaDevices::defaultVideoInput());
    QImageCapture capture;
    QMediaCaptureSession session;
    session.setCamera(&camera);
    session.setImageCapture(&capture);
    QImage shot;
    QEventLoop wait;
    connect(&capture, &QImageCapture::readyForCaptureChanged, &wait, [&capture](bool ready) {
        if (ready)
            capture.capture();
    });
    connect(&capture, &QImageCapture::imageCaptured, &wait, [&](int, const QImage& image) {
        shot = image;
        wait.quit();
    });
    connect(&capture, &QImageCapture::errorOccurred, &wait, &QEventLoop::quit);
    connect(&camera, &QCamera::errorOccurred, &wait, &QEventLoop::quit);
    QTimer::singleShot(CameraWaitMs, &wait, &QEventLoop::quit);
    camera.start();
    wait.exec();
    camera.stop();
    if (shot.isNull()) {
        const QString reason = !camera.errorString().isEmpty() ? camera.errorString() : capture.errorString();
        tell(bilingual("กล้องไม่ส่งภาพมา: ", "The camera gave no picture: ") + reason);
        return {};
    }
    return keep(shot);
}

QString ClientCapture::freeFileName(const QString& folder, const QString& number, const QString& suffix)
{
    const QDir dir(folder);
    QString name = number + QLatin1Char('.') + suffix;
    for (int page = 2; QFile::exists(dir.filePath(name)); ++page)
        name = QStringLiteral("%1-%2.%3").arg(number).arg(page).arg(suffix);
    return dir.filePath(name);
}

QString ClientCapture::keep(const QImage& picture)
{
    if (d->number.isEmpty() || d->folder.isEmpty()) {
        tell(bilingual("บันทึกเอกสารก่อน แล้วจึงจับภาพเก็บไว้กับเอกสาร", "Save the document first, then capture a picture for it"));
        return {};
    }
    if (picture.isNull())
        return {};
    const std::optional<QRect> part = crop(picture);
    if (!part)
        return {};
    const QImage kept = picture.copy(part->intersected(picture.rect()));
    if (!QDir().mkpath(d->folder)) {
        tell(bilingual("สร้างโฟลเดอร์ %1 ไม่ได้", "Could not make the folder %1").arg(d->folder));
        return {};
    }
    QString file;
    QString error;
    if (d->format == QLatin1String("PDF")) {
        file = QDir(d->folder).filePath(d->number + QStringLiteral(".PDF"));
        if (!PdfPages::append(file, kept, &error)) {
            tell(bilingual("เพิ่มหน้าใน %1 ไม่ได้: %2", "Could not add a page to %1: %2").arg(file, error));
            return {};
        }
    } else {
        file = freeFileName(d->folder, d->number, QStringLiteral("PNG"));
        if (!kept.save(file, "PNG")) {
            tell(bilingual("เขียน %1 ไม่ได้", "Could not write %1").arg(file));
            return {};
        }
    }
    Q_EMIT CaptureSaved(file);
    return file;
}

} // namespace qd8
