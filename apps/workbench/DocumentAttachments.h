#pragma once

#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <functional>

namespace qd8 {

class ClientCapture;
class HardCopyScan;
class HostedControl;

// The paper copies of a document form's document, through its scan strip: a type button
// opens <folder>/<document number>.<type> (offering to scan when there is none; scanned
// pages are shown before they are kept, a feeder's pages go into one PDF, image types take
// a file a page), FOLDER opens the folder, CHANGE picks another, and files dropped on the
// strip are copied in under the document's number. The folder is the one picked by hand
// (ManualFolder), else HardCopy/<document table> in the installation folder. Pictures
// captured for the document (capture()) go into the same folder, or into its PDF.
class DocumentAttachments : public QObject {
    Q_OBJECT

public:
    DocumentAttachments(HostedControl& form, const QString& table, HardCopyScan* strip);

    HardCopyScan* strip() const { return m_strip; }
    ClientCapture* capture() const { return m_capture; }
    // The document shown ("" while it is not saved yet) and whether it is being edited.
    void setDocument(const QString& number, bool editing);
    QString folder() const;
    // The files of the document of one type, the first page's first.
    QStringList files(const QString& suffix) const;

    // What the user is shown and asked; replaced by a script in the tests.
    // Keep the pages scanned? (default: a preview dialog)
    std::function<bool(const QList<QImage>&)> preview;
    // Another folder, "" to keep the one there is (default: the folder dialog).
    std::function<QString(const QString&)> chooseFolder;
    // The scanner SANE names ("" for the first it finds).
    QString scannerDevice;

    // A type button: opens the files, or offers to scan when there are none.
    void open(const QString& suffix);
    // Scans into the document's file of the type; false when nothing was kept.
    bool scanInto(const QString& suffix);
    // Copies the files in; the names given to them.
    QStringList copyIn(const QStringList& paths);

private:
    void onClick(int index, const QString& suffix);
    bool requireNumber() const;
    void tell(const QString& thai, const QString& english) const;
    QString title() const;

    HostedControl& m_form;
    QString m_table;
    HardCopyScan* m_strip;
    ClientCapture* m_capture;
    QString m_number;
};

} // namespace qd8
