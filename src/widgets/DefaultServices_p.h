#pragma once

#include "foundation/Services.h"

#include <QElapsedTimer>
#include <QList>
#include <QMessageBox>

class QProgressDialog;

namespace qd8 {

// The Qt implementations of the services, installed as the defaults when the library
// loads: QMessageBox, the pick-list dialog, QProcess and QDesktopServices.

class QtMessageService : public MessageService {
public:
    void information(const QString& title, const QString& text) override;
    void critical(const QString& title, const QString& text) override;
    bool question(const QString& title, const QString& text) override;
    SaveAnswer askToSave(const QString& title, const QString& text) override;

private:
    QMessageBox::StandardButton ask(QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton) const;
};

class DialogPickerService : public PickerService {
public:
    QString pick(const PickRequest& request) override;
    int choose(const QString& title, const QStringList& entries, int current) override;
    QDate pickDate(QDate initial, QPoint position, const DateLook& look) override;
    QDateTime pickDateTime(const QDateTime& initial, QPoint position, const DateLook& look) override;
    QDate pickMonth(QDate initial, int style, QPoint position, const DateLook& look) override;
    std::optional<QString> inputMultiLine(const QString& title, const QString& text, int languageId) override;
    int pickColor(int initial, const QString& title) override;
    QString saveFileName(const QString& title, const QString& suggested, const QString& filter) override;
};

class QtShellService : public ShellService {
public:
    bool run(const QString& commandLine, int windowStyle) override;
    bool openUrl(const QString& url) override;
};

// A QProgressDialog per running operation, shown once it has run ShowAfterMs; until then
// nothing appears, so quick saves stay quiet.
class QtProgressService : public ProgressService {
public:
    ~QtProgressService() override;
    void begin(const QString& title, const QString& text, qint64 total) override;
    bool step(qint64 done) override;
    void end() override;

    static constexpr int ShowAfterMs = 250;

private:
    struct Operation {
        QString title;
        QString text;
        qint64 total = 0;
        QElapsedTimer started;
        qint64 lastShownMs = -1;
        QProgressDialog* dialog = nullptr;
    };
    QList<Operation> m_running;
};

} // namespace qd8
