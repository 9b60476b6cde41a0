#pragma once

#include "foundation/Services.h"

#include <QList>
#include <QStringList>

namespace qd8::test {

// Services that answer from a script and record every call, installed for every test by
// the shared main: no test ever waits on a dialog or starts a program.
class ScriptedMessages : public MessageService {
public:
    struct Shown {
        QString kind;  // "information", "critical", "question"
        QString title;
        QString text;
    };
    void information(const QString& title, const QString& text) override;
    void critical(const QString& title, const QString& text) override;
    // Answers from the queue; an unscripted question fails the test and answers No.
    bool question(const QString& title, const QString& text) override;

    // Answers from `saveAnswers` (shown as kind "save", the service's language then in `saveLanguages`);
    // an unscripted one fails the test and answers Cancel.
    SaveAnswer askToSave(const QString& title, const QString& text) override;

    QList<bool> answers;
    QList<SaveAnswer> saveAnswers;
    QList<int> saveLanguages;
    QList<Shown> shown;
    void reset() { answers.clear(); saveAnswers.clear(); saveLanguages.clear(); shown.clear(); }
};

class ScriptedPicker : public PickerService {
public:
    // Answers from the queue; "" (nothing picked) once it is empty.
    QString pick(const PickRequest& request) override;
    // Answers from `choices`; -1 (cancelled) once it is empty.
    int choose(const QString& title, const QStringList& entries, int current) override;
    // Answer from `dateAnswers`; cancelled (invalid) once it is empty.
    QDate pickDate(QDate initial, QPoint position, const DateLook& look) override;
    QDateTime pickDateTime(const QDateTime& initial, QPoint position, const DateLook& look) override;
    QDate pickMonth(QDate initial, int style, QPoint position, const DateLook& look) override;
    // Answers from `textAnswers`; cancelled once it is empty.
    std::optional<QString> inputMultiLine(const QString& title, const QString& text, int languageId) override;
    // Answers from `colorAnswers`; cancelled (invalid) once it is empty.
    int pickColor(int initial, const QString& title) override;
    // Answers from `fileAnswers` ("" cancelled once it is empty); the titles asked go to `fileTitles`.
    QString saveFileName(const QString& title, const QString& suggested, const QString& filter) override;

    // One date pick as asked: "date", "datetime" or "month", what it opened with, where.
    struct DateAsk {
        QString kind;
        QDateTime initial;
        int style = 0;
        QPoint position;
        DateLook look;
    };

    QStringList answers;
    QList<PickRequest> requests;
    QList<int> choices;
    QStringList choiceTitles;
    QList<QDateTime> dateAnswers;
    QList<DateAsk> dateAsks;
    QList<std::optional<QString>> textAnswers;
    QList<int> colorAnswers;
    QStringList fileAnswers;
    QStringList fileTitles;
    void reset()
    {
        fileAnswers.clear(); fileTitles.clear();
        answers.clear(); requests.clear(); choices.clear(); choiceTitles.clear();
        dateAnswers.clear(); dateAsks.clear(); textAnswers.clear(); colorAnswers.clear();
    }
};

class ScriptedShell : public ShellService {
public:
    bool run(const QString& commandLine, int windowStyle) override;
    bool openUrl(const QString& url) override;

    QStringList commands;  // "run:<command line>:<style>" or "url:<url>"
    bool starts = true;    // false: every program and page fails to open
    void reset() { commands.clear(); starts = true; }
};

// Records every operation and its last step; answers "cancel" once an operation of the
// title `cancelTitle` reaches step `cancelAt`.
class ScriptedProgress : public ProgressService {
public:
    void begin(const QString& title, const QString& text, qint64 total) override;
    bool step(qint64 done) override;
    void end() override;

    struct Operation {
        QString title;
        QString text;
        qint64 total = 0;
        qint64 lastStep = -1;
        int steps = 0;
    };
    QList<Operation> operations;
    int ended = 0;
    QString cancelTitle;
    qint64 cancelAt = -1;
    void reset() { operations.clear(); m_open.clear(); ended = 0; cancelTitle.clear(); cancelAt = -1; }

private:
    QList<int> m_open;  // indexes into operations, innermost last
};

ScriptedMessages& scriptedMessages();
ScriptedProgress& scriptedProgress();
ScriptedPicker& scriptedPicker();
ScriptedShell& scriptedShell();
// Installs the four as the services in force and clears their scripts.
void installScriptedServices();

} // namespace qd8::test
