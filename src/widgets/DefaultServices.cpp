#include "widgets/DefaultServices.h"

#include "widgets/PickListDialog.h"

#include <QApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QProcess>
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

bool QtShellService::run(const QString& commandLine, int)
{
    QStringList arguments = QProcess::splitCommand(commandLine);
    if (arguments.isEmpty())
        return false;
    const QString program = arguments.takeFirst();
    return QProcess::startDetached(program, arguments);
}

bool QtShellService::openUrl(const QString& url)
{
    return QDesktopServices::openUrl(QUrl::fromUserInput(url));
}

} // namespace qd8
