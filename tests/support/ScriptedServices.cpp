#include "support/ScriptedServices.h"

#include <gtest/gtest.h>

namespace qd8::test {

void ScriptedMessages::information(const QString& title, const QString& text)
{
    shown.append({QStringLiteral("information"), title, text});
}

void ScriptedMessages::critical(const QString& title, const QString& text)
{
    shown.append({QStringLiteral("critical"), title, text});
}

bool ScriptedMessages::question(const QString& title, const QString& text)
{
    shown.append({QStringLiteral("question"), title, text});
    if (answers.isEmpty()) {
        ADD_FAILURE() << "unscripted question: " << text.toStdString();
        return false;
    }
    return answers.takeFirst();
}

MessageService::SaveAnswer ScriptedMessages::askToSave(const QString& title, const QString& text)
{
    shown.append({QStringLiteral("save"), title, text});
    saveLanguages.append(language());
    if (saveAnswers.isEmpty()) {
        ADD_FAILURE() << "unscripted save question: " << text.toStdString();
        return SaveAnswer::Cancel;
    }
    return saveAnswers.takeFirst();
}

int ScriptedPicker::choose(const QString& title, const QStringList&, int)
{
    choiceTitles << title;
    return choices.isEmpty() ? -1 : choices.takeFirst();
}

QString ScriptedPicker::pick(const PickRequest& request)
{
    requests.append(request);
    return answers.isEmpty() ? QString() : answers.takeFirst();
}

QDateTime ScriptedPicker::pickDateTime(const QDateTime& initial, QPoint position, const DateLook& look)
{
    dateAsks.append({QStringLiteral("datetime"), initial, 0, position, look});
    return dateAnswers.isEmpty() ? QDateTime() : dateAnswers.takeFirst();
}

QDate ScriptedPicker::pickDate(QDate initial, QPoint position, const DateLook& look)
{
    dateAsks.append({QStringLiteral("date"), initial.startOfDay(), 0, position, look});
    return dateAnswers.isEmpty() ? QDate() : dateAnswers.takeFirst().date();
}

QDate ScriptedPicker::pickMonth(QDate initial, int style, QPoint position, const DateLook& look)
{
    dateAsks.append({QStringLiteral("month"), initial.startOfDay(), style, position, look});
    return dateAnswers.isEmpty() ? QDate() : dateAnswers.takeFirst().date();
}

std::optional<QString> ScriptedPicker::inputMultiLine(const QString&, const QString&, int)
{
    return textAnswers.isEmpty() ? std::nullopt : textAnswers.takeFirst();
}

int ScriptedPicker::pickColor(int, const QString&)
{
    return colorAnswers.isEmpty() ? -1 : colorAnswers.takeFirst();
}

QString ScriptedPicker::saveFileName(const QString& title, const QString&, const QString&)
{
    fileTitles << title;
    return fileAnswers.isEmpty() ? QString() : fileAnswers.takeFirst();
}

bool ScriptedShell::run(const QString& commandLine, int windowStyle)
{
    commands << QStringLiteral("run:%1:%2").arg(commandLine).arg(windowStyle);
    return starts;
}

bool ScriptedShell::openUrl(const QString& url)
{
    commands << QStringLiteral("url:") + url;
    return starts;
}

void ScriptedProgress::begin(const QString& title, const QString& text, qint64 total)
{
    operations.append({title, text, total, -1, 0});
    m_open.append(int(operations.size()) - 1);
}

bool ScriptedProgress::step(qint64 done)
{
    if (m_open.isEmpty())
        return true;
    Operation& operation = operations[m_open.last()];
    operation.lastStep = done;
    ++operation.steps;
    return !(operation.title == cancelTitle && cancelAt >= 0 && done >= cancelAt);
}

void ScriptedProgress::end()
{
    ++ended;
    if (!m_open.isEmpty())
        m_open.removeLast();
}

ScriptedProgress& scriptedProgress()
{
    static ScriptedProgress service;
    return service;
}

ScriptedMessages& scriptedMessages()
{
    static ScriptedMessages service;
    return service;
}

ScriptedPicker& scriptedPicker()
{
    static ScriptedPicker service;
    return service;
}

ScriptedShell& scriptedShell()
{
    static ScriptedShell service;
    return service;
}

void installScriptedServices()
{
    scriptedMessages().reset();
    scriptedPicker().reset();
    scriptedShell().reset();
    scriptedProgress().reset();
    Services::setProgress(&scriptedProgress());
    Services::setMessages(&scriptedMessages());
    Services::setPicker(&scriptedPicker());
    Services::setShell(&scriptedShell());
}

} // namespace qd8::test
