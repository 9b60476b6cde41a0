#include "support/ReadBack.h"

#include <QJsonDocument>
#include <QProcess>
#include <QRegularExpression>

namespace qd8::test {

namespace {

QByteArray run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60000);
    return process.readAllStandardOutput();
}

// The Debian interpreter, which has openpyxl (a python3 on PATH may be another one).
constexpr const char* ReadSheet = R"(
import json, sys, openpyxl
ws = openpyxl.load_workbook(sys.argv[1]).active
rows = [[[type(c.value).__name__, "" if c.value is None else str(c.value), bool(c.font and c.font.b)] for c in r]
        for r in ws.iter_rows()]
rows.append(["frozen", str(ws.freeze_panes)])
print(json.dumps(rows))
)";

} // namespace

QJsonArray readWorkbook(const QString& file)
{
    return QJsonDocument::fromJson(run(QStringLiteral("/usr/bin/python3"), {QStringLiteral("-c"), QLatin1String(ReadSheet), file})).array();
}

QString pdfText(const QString& file)
{
    return QString::fromUtf8(run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), file, QStringLiteral("-")}));
}

int pdfPages(const QString& file)
{
    const QString info = QString::fromUtf8(run(QStringLiteral("pdfinfo"), {file}));
    return QRegularExpression(QStringLiteral("Pages:\\s+(\\d+)")).match(info).captured(1).toInt();
}

QString comparable(const QString& text)
{
    QString out;
    for (QChar c : text) {
        const char16_t u = c.unicode();
        if (c.isSpace() || u == 0x0E31 || (u >= 0x0E34 && u <= 0x0E3A) || (u >= 0x0E47 && u <= 0x0E4E)
            || (u >= 0xF700 && u <= 0xF71F))
            continue;
        out += u == 0x0E33 ? QChar(0x0E32) : c;
    }
    return out;
}

} // namespace qd8::test
