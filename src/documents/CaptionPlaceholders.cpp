#include "documents/CaptionPlaceholders.h"

#include "database/DataObject.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Sql.h"

#include <QRegularExpression>

namespace qd8 {

namespace {

// A placeholder read from an option: the option's alias and the text used while the
// option is empty ("" for most: an unset custom field leaves no words in a caption).
struct OptionPlaceholder {
    QString option;
    QString fallback;
};

void addPlaceholder(QHash<QString, OptionPlaceholder>& table, const QString& name, const QString& option, const QString& fallback = {})
{
    table.insert(name.toUpper(), {option, fallback});
}

const QString FormulaMajorNamePlaceholder = QStringLiteral("MRPFORMULAMAJORNAME");
const QString FormulaMajorOption = QStringLiteral("MRPFORMULAMAJOR");

const QHash<QString, OptionPlaceholder>& optionPlaceholders()
{
    static const QHash<QString, OptionPlaceholder> placeholders = [] {
        QHash<QString, OptionPlaceholder> table;
        for (int i = 1; i <= 5; ++i) {
            const QString number = QString::number(i);
            addPlaceholder(table, QStringLiteral("Custom") + number, QStringLiteral("Custom") + number);
            addPlaceholder(table, QStringLiteral("ICCustom") + number, QStringLiteral("ICCUSTOM") + number);
            addPlaceholder(table, QStringLiteral("SECustom") + number, QStringLiteral("SECUSTOM") + number);
        }
        addPlaceholder(table, QStringLiteral("JobCodeCaption"), QStringLiteral("JobCodeCaption"));
        addPlaceholder(table, QStringLiteral("MRPSECTIONCAPTION"), QStringLiteral("MRPSECTIONCAPTION"), QStringLiteral("หมวดสินค้า"));
        // The leading blank is part of the suite's caption.
        addPlaceholder(table, QStringLiteral("MRPGROUPCAPTION"), QStringLiteral("MRPGROUPCAPTION"), QStringLiteral(" กลุ่มสินค้า"));
        addPlaceholder(table, QStringLiteral("MRPFORMULAMAJOR"), QStringLiteral("MRPFORMULAMAJOR"));
        addPlaceholder(table, QStringLiteral("MRPFORMULAMINOR"), QStringLiteral("MRPFORMULAMINOR"));
        return table;
    }();
    return placeholders;
}

} // namespace

CaptionPlaceholders::CaptionPlaceholders(DataObject* options, const QString& dataConnectionString)
    : m_options(options)
    , m_connectionString(dataConnectionString)
{
}

QString CaptionPlaceholders::ReplaceCustomCaption(const QString& text)
{
    static const QRegularExpression placeholder(QStringLiteral(R"(\{([^{}]*)\})"));
    QString result;
    qsizetype copied = 0;
    for (auto it = placeholder.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch match = it.next();
        const std::optional<QString> value = placeholderValue(match.captured(1).toUpper());
        if (!value)
            continue;  // not a placeholder of ours: the braces stay
        result += QStringView(text).mid(copied, match.capturedStart() - copied);
        result += *value;
        copied = match.capturedEnd();
    }
    result += QStringView(text).mid(copied);
    return result;
}

QString CaptionPlaceholders::ReplaceTextValue(const QString& text)
{
    return ReplaceCustomCaption(text).trimmed();
}

double CaptionPlaceholders::ReplaceValue(const QString& text)
{
    bool ok = false;
    const double value = ReplaceTextValue(text).toDouble(&ok);
    return ok ? value : 0;
}

QDate CaptionPlaceholders::ReplaceDateValue(const QString& text)
{
    static const QRegularExpression today(QStringLiteral(R"(^\{\s*TODAY\s*(?:([+-])\s*(\d+)\s*)?\}$)"),
        QRegularExpression::CaseInsensitiveOption);
    const QString expanded = ReplaceTextValue(text);
    if (const auto m = today.match(expanded); m.hasMatch()) {
        const qint64 days = m.captured(2).toLongLong();
        return m_today.addDays(m.captured(1) == QLatin1String("-") ? -days : days);
    }
    // Option values are written by people, in either era.
    return parseDate(expanded, DateEra::Gregorian, m_today).value_or(QDate());
}

std::optional<QString> CaptionPlaceholders::placeholderValue(const QString& name)
{
    if (const auto cached = m_values.constFind(name); cached != m_values.constEnd())
        return *cached;
    QString value;
    if (name == FormulaMajorNamePlaceholder) {
        value = formulaGroupName(option(FormulaMajorOption));
    } else {
        const auto& placeholders = optionPlaceholders();
        const auto known = placeholders.constFind(name);
        if (known == placeholders.constEnd())
            return {};
        value = option(known->option);
        if (value.trimmed().isEmpty())
            value = known->fallback;
    }
    m_values.insert(name, value);
    return value;
}

QString CaptionPlaceholders::option(const QString& alias)
{
    if (const auto cached = m_optionTexts.constFind(alias); cached != m_optionTexts.constEnd())
        return *cached;
    QString value;
    if (m_options) {
        try {
            value = m_options->effectiveText(alias);
        } catch (const DbError&) {
            // An option that cannot be read counts as empty, so its default shows.
        }
    }
    m_optionTexts.insert(alias, value);
    return value;
}

QString CaptionPlaceholders::formulaGroupName(const QString& code) const
{
    const QString fallback = QStringLiteral("รหัสสูตร");
    if (code.trimmed().isEmpty() || m_connectionString.isEmpty())
        return fallback;
    try {
        Connection connection;
        connection.open(m_connectionString);
        Recordset rs;
        rs.open(Sql("SELECT TMRGName FROM QD8TMRPFormulaGrp WHERE TMRGCode=") + quoted(code), connection);
        const QString name = rs.eof() ? QString() : rs.text(QStringLiteral("TMRGName"));
        return name.trimmed().isEmpty() ? fallback : name;
    } catch (const DbError&) {
        // A code the statement cannot carry, or an unreachable database: the caption still shows.
        return fallback;
    }
}

} // namespace qd8
