#pragma once

#include "widgets/HostedControl.h"

#include <QImage>
#include <QRect>
#include <functional>
#include <memory>
#include <optional>

class QToolButton;

namespace qd8 {

// Takes a picture for a document on the host's request: the whole screen, one window, or a
// camera when the computer has one. The user crops it, then it is kept in the document's
// attachment folder, as <DocumentNumber>.PNG (then -2, -3... beside the ones there) or as the
// last page of <DocumentNumber>.PDF, the scanned copy the scan strip opens; CaptureSaved tells
// the host which file. The control is one button whose menu offers the three sources; the
// host may call them directly too.
//
// Session: the host sets it as on any control (SetLast2 gives the language); messages are
// worded in the session language. A missing camera, a desktop that refuses a screen picture
// or a document not saved yet is said in a message, never raised as an error.
class ClientCapture : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString AttachmentFolder READ AttachmentFolder WRITE setAttachmentFolder)
    Q_PROPERTY(QString DocumentNumber READ DocumentNumber WRITE setDocumentNumber)
    Q_PROPERTY(QString SaveFormat READ SaveFormat WRITE setSaveFormat)

public:
    explicit ClientCapture(QWidget* parent = nullptr);
    ~ClientCapture() override;

    // The folder of the document's attachments (made when missing).
    QString AttachmentFolder() const;
    void setAttachmentFolder(const QString& folder);
    // The document the picture belongs to; "" while it is not saved: nothing is captured.
    QString DocumentNumber() const;
    void setDocumentNumber(const QString& number);
    // "PNG" (a picture file of its own, the default) or "PDF" (a page of the scanned copy);
    // the menu's last entry switches between the two.
    QString SaveFormat() const;
    void setSaveFormat(const QString& format);

    // Each returns the file written, "" when nothing was kept.
    // The screen the control is on.
    Q_INVOKABLE QString CaptureScreen();
    // One window as it shows now; the control's own window when none is named.
    Q_INVOKABLE QString CaptureWindow(QWidget* window = nullptr);
    // A picture from the default camera; without a camera says so.
    Q_INVOKABLE QString CaptureCamera();
    Q_INVOKABLE static bool HasCamera();
    // Lets the user crop the picture, then writes it as SaveFormat says.
    QString keep(const QImage& picture);

    // How the picture is cropped: the part kept, nothing when the user gave up. The crop
    // dialog by default; a test scripts it.
    std::function<std::optional<QRect>(const QImage&)> crop;

    // The first free name for one more file of a document: <number>.<suffix>, then
    // <number>-2.<suffix>, <number>-3.<suffix>... (the scan strip's page rule).
    static QString freeFileName(const QString& folder, const QString& number, const QString& suffix);

    QToolButton* button() const;

Q_SIGNALS:
    void CaptureSaved(QString FileName);

protected:
    void changeEvent(QEvent* event) override;

private:
    void tell(const QString& text) const;
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
