#pragma once

#include <QStringList>
#include <QTextStream>

namespace qd8 {

// qd8-admin: creates the three databases with the schema and the sample company (and the
// files of the sample installation: icons, theme and startup settings), checks a
// database against the schema, and fills a document list's table with made-up documents.
// Returns the process exit code: 0 done, 1 the check found problems or an operation
// failed, 2 the command line is wrong (nothing was touched).
class AdminCommand {
public:
    AdminCommand(QTextStream& out, QTextStream& err) : m_out(out), m_err(err) {}
    int run(const QStringList& arguments);

private:
    int init(const QStringList& arguments);
    int check(const QStringList& arguments);
    int generate(const QStringList& arguments);
    // Reports a wrong generate command line; returns 2.
    int refuse(const QString& message);
    int usage();
    int initDatabases(const QStringList& connectionStrings, bool force);
    // Refuses files that exist unless forced; true when the files may be written.
    bool mayWriteFiles(const QString& dir, bool force);
    int writeFiles(const QString& dir);

    QTextStream& m_out;
    QTextStream& m_err;
};

} // namespace qd8
