#include "AdminCommand.h"
#include "DocumentGenerator.h"
#include "SampleFiles.h"

#include "database/Schema.h"
#include "foundation/ConnectionPool.h"
#include "foundation/ConnectionString.h"
#include "foundation/DbError.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>

namespace qd8 {

namespace {

const DatabaseRole Roles[] = {DatabaseRole::Application, DatabaseRole::CommandCentre, DatabaseRole::CompanyData};

QString option(const QStringList& arguments, const QString& name)
{
    const qsizetype at = arguments.indexOf(name);
    return at >= 0 && at + 1 < arguments.size() ? arguments[at + 1] : QString();
}

// The arguments that are neither options nor the value of an option.
QStringList positionalArguments(const QStringList& arguments)
{
    static const QStringList withValue = {"--app", "--center", "--data", "--files", "--role", "--rows", "--list"};
    QStringList positional;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (withValue.contains(arguments[i]))
            ++i;
        else if (!arguments[i].startsWith(QLatin1String("--")))
            positional << arguments[i];
    }
    return positional;
}

} // namespace

int AdminCommand::usage()
{
    m_err << "usage:\n"
             "  qd8-admin init DIR [--files FILES] [--force]\n"
             "      creates QD8Command.dat, QD8Center.dat and QD8Data.dat (SQLite) in DIR with the schema\n"
             "      and the sample company, and writes the files of the sample installation beside them\n"
             "      (or in FILES): Icons/ (the catalogue's icons), Support/Theme/Theme.ini, QD8STARTUP.INI\n"
             "  qd8-admin init --app CONN --center CONN --data CONN [--files DIR] [--force]\n"
             "      the same on the databases the connection strings name (PostgreSQL databases are\n"
             "      created when missing, and the data database gets read-only postgres_fdw tables of\n"
             "      the catalogue it joins); the files of the installation go to DIR when given\n"
             "  --force replaces databases and files that exist\n"
             "  qd8-admin check CONN [--role app|center|data]\n"
             "      reports the tables, views and columns the database lacks (on PostgreSQL the data\n"
             "      database's catalogue tables too)\n"
             "  qd8-admin generate documents --rows N [--list ALIAS] (DIR | --data CONN)\n"
             "      adds N made-up documents to the table of a document list (default PURPR) in the\n"
             "      company data database QD8Data.dat of DIR, or in the one CONN names; lists: "
          << DocumentGenerator::listAliases().join(QStringLiteral(", ")) << "\n";
    m_err.flush();
    return 2;
}

int AdminCommand::run(const QStringList& arguments)
{
    if (arguments.isEmpty())
        return usage();
    try {
        if (arguments[0] == QLatin1String("init"))
            return init(arguments.mid(1));
        if (arguments[0] == QLatin1String("check"))
            return check(arguments.mid(1));
        if (arguments[0] == QLatin1String("generate"))
            return generate(arguments.mid(1));
    } catch (const DbError& e) {
        m_err << "qd8-admin: " << e.userText(1) << '\n';
        if (const QString detail = e.detail(1); !detail.isEmpty())
            m_err << "  " << detail << '\n';
        if (!e.statement().isEmpty())
            m_err << "  while running: " << e.statement().left(400) << '\n';
        m_err.flush();
        return 1;
    }
    return usage();
}

int AdminCommand::init(const QStringList& arguments)
{
    const bool force = arguments.contains(QLatin1String("--force"));
    QString filesDir = option(arguments, QStringLiteral("--files"));
    if (arguments.contains(QLatin1String("--files")) && (filesDir.isEmpty() || filesDir.startsWith(QLatin1String("--")))) {
        m_err << "qd8-admin init: --files needs a folder\n";
        return usage();
    }
    const QStringList positional = positionalArguments(arguments);
    QStringList connectionStrings;
    if (arguments.contains(QLatin1String("--app"))) {
        for (const char* key : {"--app", "--center", "--data"}) {
            const QString cs = option(arguments, QLatin1String(key));
            if (cs.isEmpty()) {
                m_err << "qd8-admin init: " << key << " CONN is missing\n";
                return usage();
            }
            connectionStrings << cs;
        }
        if (!positional.isEmpty())
            return usage();
        if (!filesDir.isEmpty() && !mayWriteFiles(filesDir, force))
            return 1;
        const int status = initDatabases(connectionStrings, force);
        return status != 0 || filesDir.isEmpty() ? status : writeFiles(filesDir);
    }
    if (positional.size() != 1)
        return usage();
    QDir dir(positional[0]);
    if (!dir.exists() && !QDir().mkpath(dir.path())) {
        m_err << "qd8-admin init: cannot create the folder " << dir.path() << '\n';
        return 1;
    }
    if (filesDir.isEmpty())
        filesDir = dir.path();
    for (DatabaseRole role : Roles) {
        const QString file = dir.absoluteFilePath(Schema::fileName(role));
        if (QFileInfo::exists(file) && !force) {
            m_err << "qd8-admin init: " << file << " already exists (use --force to create it anew)\n";
            return 1;
        }
    }
    if (!mayWriteFiles(filesDir, force))
        return 1;
    for (DatabaseRole role : Roles) {
        const QString file = dir.absoluteFilePath(Schema::fileName(role));
        for (const QString& suffix : {QString(), QStringLiteral("-wal"), QStringLiteral("-shm")})
            QFile::remove(file + suffix);
        connectionStrings << QStringLiteral("Driver=SQLite;Data Source=%1").arg(file);
    }
    const int status = initDatabases(connectionStrings, false);
    return status != 0 ? status : writeFiles(filesDir);
}

bool AdminCommand::mayWriteFiles(const QString& dir, bool force)
{
    if (force)
        return true;
    // The icons are ours to replace; the settings files may hold an installation's edits.
    const QDir root(dir);
    for (const QString& path : SampleFiles::relativePaths()) {
        if (path.startsWith(QLatin1String("Icons/")) || !QFileInfo::exists(root.filePath(path)))
            continue;
        m_err << "qd8-admin init: " << QDir::toNativeSeparators(root.absoluteFilePath(path))
              << " already exists (use --force to write it anew)\n";
        m_err.flush();
        return false;
    }
    return true;
}

int AdminCommand::writeFiles(const QString& dir)
{
    QElapsedTimer timer;
    timer.start();
    QString error;
    if (!SampleFiles::write(dir, &error)) {
        m_err << "qd8-admin init: " << error << '\n';
        m_err.flush();
        return 1;
    }
    m_out << "Sample files written to " << QDir::toNativeSeparators(QDir(dir).absolutePath()) << " in " << timer.elapsed()
          << " ms: " << SampleFiles::iconCount() << " icons in Icons, Support/Theme/Theme.ini, QD8STARTUP.INI\n";
    m_out.flush();
    return 0;
}

int AdminCommand::initDatabases(const QStringList& connectionStrings, bool force)
{
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < 3; ++i) {
        const DatabaseRole role = Roles[i];
        QString cs = connectionStrings[i];
        const bool sqlite = ConnectionString::parse(cs).engine() == Engine::SQLite;
        // A new SQLite file is created on this first open only.
        const QString creating = sqlite ? cs + QStringLiteral(";Create=yes") : cs;
        Schema::createDatabaseIfMissing(creating);
        if (force)
            Schema::dropAll(creating);
        Schema::create(creating, role);
        const qint64 rows = Schema::loadSample(creating, role);
        ConnectionPool::instance().clear(creating);
        m_out << Schema::fileName(role) << ": " << Schema::objectNames(role).size() << " tables and views, "
              << rows << " sample rows\n    " << cs << '\n';
    }
    // The session database's own statements reach the catalogue by plain names.
    if (Schema::linkCatalogue(connectionStrings[2], connectionStrings[0]))
        m_out << Schema::fileName(DatabaseRole::CompanyData) << " reaches " << Schema::linkedCatalogueNames().join(QStringLiteral(", "))
              << " of " << Schema::fileName(DatabaseRole::Application) << " through postgres_fdw (server qd8_catalogue)\n";
    m_out << "Sample company created in " << timer.elapsed() << " ms.\n";
    m_out.flush();
    return 0;
}

int AdminCommand::check(const QStringList& arguments)
{
    if (arguments.isEmpty() || arguments[0].startsWith(QLatin1String("--")))
        return usage();
    const QString cs = arguments[0];
    DatabaseRole role = Schema::roleOf(cs);
    const QString roleText = option(arguments, QStringLiteral("--role"));
    if (!roleText.isEmpty()) {
        bool known = false;
        for (DatabaseRole r : Roles)
            if (Schema::roleName(r) == roleText) {
                role = r;
                known = true;
            }
        if (!known)
            return usage();
    }
    const auto problems = Schema::check(cs, role);
    for (const auto& p : problems) {
        if (p.missingColumns.isEmpty())
            m_out << "missing table or view: " << p.table << '\n';
        else
            m_out << "missing columns in " << p.table << ": " << p.missingColumns.join(QStringLiteral(", ")) << '\n';
    }
    qsizetype checked = Schema::objectNames(role).size();
    if (Schema::holdsCatalogueLink(cs, role))
        checked += Schema::linkedCatalogueNames().size();
    m_out << (problems.isEmpty() ? "OK: " : "Problems: ") << problems.size() << " of "
          << checked << " tables and views of the " << Schema::roleName(role)
          << " database are missing or incomplete\n";
    m_out.flush();
    return problems.isEmpty() ? 0 : 1;
}

int AdminCommand::refuse(const QString& message)
{
    m_err << "qd8-admin generate: " << message << '\n';
    m_err.flush();
    return 2;
}

int AdminCommand::generate(const QStringList& arguments)
{
    // Every argument is checked before a database is opened.
    const QStringList positional = positionalArguments(arguments);
    if (positional.value(0) != QLatin1String("documents"))
        return usage();
    if (!arguments.contains(QLatin1String("--rows")))
        return refuse(QStringLiteral("--rows N is missing: how many documents to add"));
    const QString rowsText = option(arguments, QStringLiteral("--rows"));
    bool isNumber = false;
    const qint64 rows = rowsText.toLongLong(&isNumber);
    if (!isNumber || rows <= 0)
        return refuse(QStringLiteral("--rows needs a whole number of documents above 0, not \"%1\"").arg(rowsText));
    const QString list = arguments.contains(QLatin1String("--list")) ? option(arguments, QStringLiteral("--list"))
                                                                      : QStringLiteral("PURPR");
    if (DocumentGenerator::tableOf(list).isEmpty())
        return refuse(QStringLiteral("no document list \"%1\" to fill; the lists are %2")
                          .arg(list, DocumentGenerator::listAliases().join(QStringLiteral(", "))));
    const QString dataOption = option(arguments, QStringLiteral("--data"));
    const bool byConnection = arguments.contains(QLatin1String("--data"));
    if (byConnection ? dataOption.isEmpty() || positional.size() != 1 : positional.size() != 2)
        return usage();
    QString cs = dataOption;
    if (!byConnection) {
        const QString file = QDir(positional[1]).absoluteFilePath(Schema::fileName(DatabaseRole::CompanyData));
        if (!QFileInfo::exists(file)) {
            m_err << "qd8-admin generate: " << QDir::toNativeSeparators(file)
                  << " does not exist (qd8-admin init creates it)\n";
            m_err.flush();
            return 1;
        }
        cs = QStringLiteral("Driver=SQLite;Data Source=%1").arg(file);
    }
    QElapsedTimer timer;
    timer.start();
    const auto outcome = DocumentGenerator(cs).generate(list, rows);
    ConnectionPool::instance().clear(cs);
    m_out << "generated " << outcome.rows << " rows in " << outcome.table << " in "
          << QString::number(timer.elapsed() / 1000.0, 'f', 1) << " s (" << outcome.firstNo << " to " << outcome.lastNo << ")\n";
    m_out.flush();
    return 0;
}

} // namespace qd8
