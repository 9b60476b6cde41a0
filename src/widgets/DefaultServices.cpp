#include "widgets/DefaultServices_p.h"

#include "foundation/Language.h"
#include "foundation/SessionContext.h"
#include "widgets/DateTimeView.h"
#include "widgets/MonthCalendar.h"
#include "widgets/MonthYearView.h"
#include "widgets/PickListDialog.h"
#include "widgets/PickerPopup_p.h"
#include "widgets/frmInputMultiLine.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QInputDialog>
#include <QHash>
#include <QProcess>
#include <QProgressDialog>
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
QtProgressService progress;
[[maybe_unused]] const bool installed = (Services::setDefaults(&messages, &picker, &shell, &progress), true);

} // namespace

// A box whose buttons speak the session language, not the desktop's.
QMessageBox::StandardButton QtMessageService::ask(QMessageBox::Icon icon, const QString& title, const QString& text,
    QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton) const
{
    QMessageBox box(icon, title, text, buttons, activeWindow());
    box.setDefaultButton(defaultButton);
    static const struct {
        QMessageBox::StandardButton button;
        const char* thai;
        const char* english;
    } words[] = {{QMessageBox::Yes, "ใช่", "Yes"}, {QMessageBox::No, "ไม่ใช่", "No"}, {QMessageBox::Ok, "ตกลง", "OK"},
        {QMessageBox::Cancel, "ยกเลิก", "Cancel"}, {QMessageBox::Save, "บันทึก", "Save"}, {QMessageBox::Discard, "ไม่บันทึก", "Discard"}};
    for (const auto& word : words)
        if (QAbstractButton* button = box.button(word.button))
            button->setText(inLanguage(language(), word.thai, word.english));
    return QMessageBox::StandardButton(box.exec());
}

void QtMessageService::information(const QString& title, const QString& text)
{
    ask(QMessageBox::Information, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

void QtMessageService::critical(const QString& title, const QString& text)
{
    ask(QMessageBox::Critical, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool QtMessageService::question(const QString& title, const QString& text)
{
    return ask(QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

MessageService::SaveAnswer QtMessageService::askToSave(const QString& title, const QString& text)
{
    // Cancel is the box's only rejecting button, so Escape and the window's × answer it too.
    switch (ask(QMessageBox::Warning, title, text, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel,
        QMessageBox::Cancel)) {
    case QMessageBox::Save:
        return SaveAnswer::Save;
    case QMessageBox::Discard:
        return SaveAnswer::Discard;
    default:
        return SaveAnswer::Cancel;
    }
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

namespace {

// Shows a view in a picker popup at `position` until it picks or gives up; true when it picked.
template <typename View, typename Picked>
bool runPicker(View* view, QPoint position, Picked pickedSignal)
{
    PickerPopup popup(view, activeWindow());
    QObject::connect(view, pickedSignal, &popup, &QDialog::accept);
    QObject::connect(view, &View::cancelled, &popup, &QDialog::reject);
    popup.placeAt(position);
    view->setFocus();
    return popup.exec() == QDialog::Accepted;
}

} // namespace

QDate DialogPickerService::pickDate(QDate initial, QPoint position, const DateLook& look)
{
    auto* view = new MonthCalendar;
    view->setDateLook(look);
    view->setSelectedDate(initial.isValid() ? initial : QDate::currentDate());
    QDate picked;
    QObject::connect(view, &MonthCalendar::picked, view, [&picked](QDate d) { picked = d; });
    return runPicker(view, position, &MonthCalendar::picked) ? picked : QDate();
}

QDateTime DialogPickerService::pickDateTime(const QDateTime& initial, QPoint position, const DateLook& look)
{
    auto* view = new DateTimeView;
    view->setDateLook(look);
    view->setDateTime(initial.isValid() ? initial : QDateTime::currentDateTime());
    QDateTime picked;
    QObject::connect(view, &DateTimeView::picked, view, [&picked](const QDateTime& dt) { picked = dt; });
    return runPicker(view, position, &DateTimeView::picked) ? picked : QDateTime();
}

QDate DialogPickerService::pickMonth(QDate initial, int style, QPoint position, const DateLook& look)
{
    auto* view = new MonthYearView;
    view->setDateLook(look);
    view->setStyle(style);
    const QDate start = initial.isValid() ? initial : QDate::currentDate();
    view->setMonthYear(start.month(), start.year());
    QDate picked;
    QObject::connect(view, &MonthYearView::picked, view, [&picked](int m, int y) { picked = QDate(y, m, 1); });
    return runPicker(view, position, &MonthYearView::picked) ? picked : QDate();
}

std::optional<QString> DialogPickerService::inputMultiLine(const QString& title, const QString& text, int languageId)
{
    frmInputMultiLine form(languageId, activeWindow());
    form.setWindowTitle(title);
    form.setText(text);
    if (form.exec() != QDialog::Accepted)
        return std::nullopt;
    return form.result();
}

int DialogPickerService::pickColor(int initial, const QString& title)
{
    const QColor start = initial < 0 ? QColor(Qt::white) : QColor(initial & 0xff, (initial >> 8) & 0xff, (initial >> 16) & 0xff);
    const QColor picked = QColorDialog::getColor(start, activeWindow(), title);
    return picked.isValid() ? picked.red() + picked.green() * 256 + picked.blue() * 65536 : -1;
}

QString DialogPickerService::saveFileName(const QString& title, const QString& suggested, const QString& filter)
{
    return QFileDialog::getSaveFileName(activeWindow(), title, suggested, filter);
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

QtProgressService::~QtProgressService()
{
    for (const Operation& operation : std::as_const(m_running))
        delete operation.dialog;
}

void QtProgressService::begin(const QString& title, const QString& text, qint64 total)
{
    Operation operation{title, text, total, {}, -1, nullptr};
    operation.started.start();
    m_running.append(operation);
}

bool QtProgressService::step(qint64 done)
{
    // A program without widgets (qd8-admin) has nowhere to show it.
    if (m_running.isEmpty() || !qobject_cast<QApplication*>(QCoreApplication::instance()))
        return true;
    Operation& operation = m_running.last();
    const qint64 elapsed = operation.started.elapsed();
    // Repainting for every row would cost more than the rows; a few times a second is enough.
    if (elapsed < ShowAfterMs || (operation.lastShownMs >= 0 && elapsed - operation.lastShownMs < 50))
        return !(operation.dialog && operation.dialog->wasCanceled());
    if (!operation.dialog) {
        const int maximum = operation.total > 0 ? int(qMin<qint64>(operation.total, INT_MAX)) : 0;
        operation.dialog = new QProgressDialog(operation.text, QMessageBox::tr("Cancel"), 0, maximum, activeWindow());
        operation.dialog->setWindowTitle(operation.title);
        operation.dialog->setWindowModality(Qt::ApplicationModal);
        operation.dialog->setMinimumDuration(0);
        operation.dialog->setAutoClose(false);
        operation.dialog->setAutoReset(false);
    }
    operation.lastShownMs = elapsed;
    // setValue() of a modal dialog also handles the events, so Cancel is heard.
    operation.dialog->setValue(operation.total > 0 ? int(qMin(done, operation.total)) : 0);
    QApplication::processEvents();
    return !operation.dialog->wasCanceled();
}

void QtProgressService::end()
{
    if (!m_running.isEmpty())
        delete m_running.takeLast().dialog;
}

} // namespace qd8
