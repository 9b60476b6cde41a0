#pragma once

#include "widgets/HostedControl.h"

#include <memory>

class QAbstractButton;

namespace qd8 {

// The strip of buttons through which a document form reaches the document's scanned paper
// copies: four file-type buttons, a folder button and a change-folder button sharing the
// fourth type's place. The strip touches no file: every press is one ButtonClick to the
// host (0-3 with the type's caption, 4 "FOLDER", 5 "CHANGE"), and files dropped on the
// strip are handed over by FilesDropped.
class HardCopyScan : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString DefaultSuffix READ DefaultSuffix WRITE setDefaultSuffix)
    Q_PROPERTY(QString ManualFolder READ ManualFolder WRITE setManualFolder)
    Q_PROPERTY(bool EditStatus READ EditStatus WRITE setEditStatus)
    Q_PROPERTY(bool ChangeFolderActive READ ChangeFolderActive WRITE setChangeFolderActive)

public:
    enum { TypeButtonCount = 4, FolderIndex = 4, ChangeIndex = 5 };

    explicit HardCopyScan(QWidget* parent = nullptr);
    ~HardCopyScan() override;

    // Comma-separated file types, one type button each ("PDF,TIF,JPG,DWG" by default);
    // types past the fourth get no button, and a button past the list's end is hidden.
    // An empty list changes nothing.
    QString DefaultSuffix() const;
    void setDefaultSuffix(const QString& suffixes);
    // A folder the user chose by hand; kept for the host.
    QString ManualFolder() const;
    void setManualFolder(const QString& folder);
    // The document is being edited: enables the folder and change-folder buttons.
    bool EditStatus() const;
    void setEditStatus(bool editing);
    // Offers the change-folder button in the fourth type button's place.
    bool ChangeFolderActive() const;
    void setChangeFolderActive(bool active);

    // Button 0-5 as the event numbers them.
    QAbstractButton* button(int index) const;

Q_SIGNALS:
    void ButtonClick(int Index, QString Suffix);
    void FilesDropped(QStringList paths);

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
