#include "widgets/DefaultServices.h"

#include "foundation/SessionContext.h"
#include "widgets/PickListDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QInputDialog>
#include <QHash>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace qd8 {

namespace {

QWidget* activeWindow()
{
    return QApplication::activeWindow();
}

QtMessageService messages;
DialogPickerService picker;
QtShellService shell;
[[maybe_unused]] const bool installed = (Services::setDefaults(&messages, &picker, &shell), true);

} // namespace

void QtMessageService::information(const QString& title, const QString& text)
{
    QMessageBox::information(activeWindow(), title, text);
}

void QtMessageService::critical(const QString& title, const QString& text)
{
    QMessageBox::critical(activeWindow(), title, text);
}

bool QtMessageService::question(const QString& title, const QString& text)
{
    return QMessageBox::question(activeWindow(), title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
        == QMessageBox::Yes;
}

QString DialogPickerService::pick(const PickRequest& request)
{
    return PickListDialog::pick(request, activeWindow());
}

int DialogPickerService::choose(const QString& title, const QStringList& entries, int current)
{
    bool ok = false;
    const QString chosen = QInputDialog::getItem(activeWindow(), title, title, entries, qBound(0, current, int(entries.size()) - 1), false, &ok);
    return ok ? int(entries.indexOf(chosen)) : -1;
}

// The suite names Windows programs; this desktop runs its own equivalents, and a folder
// for the file explorer opens in the desktop's file manager.
bool QtShellService::run(const QString& commandLine, int)
{
    const QString line = commandLine.trimmed();
    const QString explorer = QStringLiteral("explorer.exe ");
    if (line.startsWith(explorer, Qt::CaseInsensitive))
        return QDesktopServices::openUrl(QUrl::fromLocalFile(localPath(line.mid(explorer.size()).trimmed())));
    static const QHash<QString, QStringList> equivalents = {
        {QStringLiteral("calc.exe"), {"gnome-calculator", "kcalc", "galculator", "mate-calc", "xcalc"}},
        {QStringLiteral("calendar.exe"), {"gnome-calendar", "korganizer", "evolution", "thunderbird"}},
    };
    QStringList arguments = QProcess::splitCommand(line);
    if (arguments.isEmpty())
        return false;
    const QString program = arguments.takeFirst();
    const auto found = equivalents.constFind(program.toLower());
    if (found == equivalents.constEnd())
        return QProcess::startDetached(localPath(program), arguments);
    for (const QString& candidate : *found) {
        const QString path = QStandardPaths::findExecutable(candidate);
        if (!path.isEmpty())
            return QProcess::startDetached(path, arguments);
    }
    return false;
}

bool QtShellService::openUrl(const QString& url)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(url));
}

} // namespace qd8
