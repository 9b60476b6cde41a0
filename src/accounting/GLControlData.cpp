// The voucher panel's reads and writes: loading a voucher, automatic posting from a
// format, allocation, and the save.
#include "accounting/GLAmounts_p.h"
#include "accounting/GLControl_p.h"
#include "database/DataObject.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QCheckBox>
#include <QDateTime>
#include <QLineEdit>

namespace qd8 {

namespace {

const QString NewNumberKey = QStringLiteral("DAILYRECORDCALL");

// Opens the caller's connection, or one of our own on `connectionString`.
class ConnectionOrOwn {
public:
    ConnectionOrOwn(Connection* given, const QString& connectionString) : m_connection(given)
    {
        if (!m_connection) {
            m_own.open(connectionString);
            m_connection = &m_own;
        }
    }
    Connection& operator*() { return *m_connection; }

private:
    Connection m_own;
    Connection* m_connection;
};

} // namespace

void GLControl::FillData(const QString& iGLDocNo)
{
    d->grid->ClearRows();
    d->balances.clear();
    d->stampKnown = false;
    Connection data;
    data.open(DataConnectionString());
    Recordset rs;
    rs.open(Sql("SELECT * FROM QD8VGLTrans WHERE TGLTNo=") + quoted(iGLDocNo) + " ORDER BY TGTSLn", data);
    if (rs.eof()) {
        SumColGrid1();
        return;
    }
    setGLBook(rs.text(QStringLiteral("TGLTTGLBCode")));
    setDescription(rs.text(QStringLiteral("TGLTDescription")));
    d->docDate = rs.field(QStringLiteral("TGLTDate")).toDate();
    d->inputSource = rs.text(QStringLiteral("TGLTInputSource"));
    d->active->setChecked(toNumber(rs.field(QStringLiteral("TGLTConfirmStatus"))) != 0);
    setGLDocNo(rs.text(QStringLiteral("TGLTNo")));
    d->loadedHeader.clear();
    for (const char* field : {"TGLTTPrjCode", "TGLTRefNo", "TGLTRefDate", "TGLTRefNo2", "TGLTRefDate2", "TGLTTBraCode", "TGLTPayTo",
             "TGLTRevision", "TGLTIsAdjust", "TGLTCreateBy", "TGLTCreateDate"})
        d->loadedHeader.insert(QLatin1String(field), rs.field(QLatin1String(field)));
    d->oldNumber = GLDocNo();
    d->loadedFlag3 = rs.field(QStringLiteral("TGLTFlag3")).toDateTime();
    d->loadedRevision = int(toNumber(rs.field(QStringLiteral("TGLTRevision"))));
    d->stampKnown = true;

    // Grid column -> view field (the account name comes from the chart).
    QList<int> source;
    for (int col = 1; col <= GLColumnCount; ++col) {
        const char* field = GLColumns[col - 1].field;
        source.append(rs.fieldIndex(col == ColName ? QStringLiteral("TACCName")
                : qstrcmp(field, "TGTSName2") == 0    ? QStringLiteral("TACCName2")
                                                      : QLatin1String(field)));
    }
    const int lineNumber = rs.fieldIndex(QStringLiteral("TGTSLn"));
    QList<QVariantList> lines;
    lines.reserve(rs.recordCount());
    for (; !rs.eof(); rs.moveNext()) {
        if (rs.field(lineNumber).isNull())
            continue;  // a voucher without lines
        QVariantList values;
        values.reserve(GLColumnCount);
        for (int index : std::as_const(source))
            values.append(rs.field(index));
        lines.append(values);
    }
    d->grid->AddItems(lines);
    SumColGrid1();
}

QVariant GLControl::loadedHeader(const QString& field) const
{
    return d->loadedHeader.value(field);
}

void GLControl::FillDataFormat()
{
    d->grid->ClearRows();
    d->formatReadFor.clear();  // the clerk asked for the format as it stands now
    FillAutoFormatNow(true);
}

bool GLControl::FillAutoFormatNow(bool ForceFill)
{
    Q_EMIT BeforeFillCustomFormat();
    if (d->formatGroup.isEmpty() || (!d->inputReady && !ForceFill))
        return false;
    try {
        Connection data;
        data.open(DataConnectionString());
        const QString readFor = d->formatGroup + QLatin1Char('\n') + DataConnectionString();
        if (d->formatReadFor != readFor) {
            d->formatBook.clear();
            d->formatLines.clear();
            Recordset group;
            group.open(Sql("SELECT TGFGTGLBCode FROM QD8TGLFormatGroup WHERE TGFGAlias=") + quoted(d->formatGroup) + " AND TGFGFlag1=1", data);
            if (!group.eof()) {
                d->formatBook = group.text(QStringLiteral("TGFGTGLBCode"));
                Recordset lines;
                lines.open(Sql("SELECT * FROM QD8TGLFormat WHERE TGFMTGFGAlias=") + quoted(d->formatGroup) + " ORDER BY TGFMLn", data);
                for (; !lines.eof(); lines.moveNext()) {
                    QString account = lines.text(QStringLiteral("TGFMTACCCode"));
                    if (const QString alias = lines.text(QStringLiteral("TGFMTACMAlias")); !alias.isEmpty()) {
                        Recordset map;
                        map.open(Sql("SELECT TACMTACCCode FROM QD8TAccountMap WHERE TACMAlias=") + quoted(alias), data);
                        account = map.eof() ? QString() : map.text(QStringLiteral("TACMTACCCode"));
                    }
                    d->formatLines.append({lines.text(QStringLiteral("TGFMLn")), lines.text(QStringLiteral("TGFMFormula")),
                        lines.text(QStringLiteral("TGFMSide")), account, lines.text(QStringLiteral("TGFMDescription")),
                        lines.text(QStringLiteral("TGFMDescription2"))});
                }
            }
            d->formatReadFor = readFor;
        }
        if (d->formatBook.isEmpty())
            return false;
        if (GLBook().isEmpty())
            setGLBook(d->formatBook);
        d->grid->ClearRows();
        SpeedProcess2(true, bilingual("บันทึกบัญชีอัตโนมัติ", "Automatic posting"));
        for (const Private::FormatLine& line : std::as_const(d->formatLines)) {
            const auto value = evaluateFormula(line.formula, d->x);
            if (!value) {
                SpeedProcess2(false);
                Services::messages().critical(bilingual("บันทึกบัญชีอัตโนมัติ", "Automatic posting"),
                    bilingual("สูตร \"%1\" ของรูปแบบ %2 บรรทัด %3 ไม่ถูกต้อง", "The formula \"%1\" of format %2 line %3 cannot be read")
                        .arg(line.formula, d->formatGroup, line.ln));
                return false;
            }
            // A negative amount belongs on the other side.
            const Currency amount = roundToCents(*value);
            if (amount == Currency() || line.account.isEmpty())
                continue;
            const bool debit = (line.side.compare(QLatin1String("D"), Qt::CaseInsensitive) == 0) == (amount > Currency());
            const int before = d->grid->Rows();
            FillAutoLineTR(QString(), debit, amount > Currency() ? amount : -amount, &data, line.account);
            for (int row = before + 1; row <= d->grid->Rows(); ++row)
                if (!line.description.isEmpty() || !line.description2.isEmpty())
                    FillDescription(row, line.description, line.description2);
        }
        SpeedProcess2(false);
    } catch (const DbError& error) {
        SpeedProcess2(false);
        d->formatReadFor.clear();
        Services::messages().critical(bilingual("บันทึกบัญชีอัตโนมัติ", "Automatic posting"), error.userText(LanguageID()));
        return false;
    }
    Q_EMIT FillAutoFormat();
    return true;
}

void GLControl::FillAutoLineTR(const QString& MAPKEY, bool IsDebit, Currency Value, Connection* ConObj, const QString& TAccCode)
{
    ConnectionOrOwn data(ConObj, DataConnectionString());
    QString account = TAccCode;
    if (account.isEmpty()) {
        Recordset map;
        map.open(Sql("SELECT TACMTACCCode FROM QD8TAccountMap WHERE TACMAlias=") + quoted(MAPKEY), *data);
        if (!map.eof())
            account = map.text(QStringLiteral("TACMTACCCode"));
    }
    if (account.isEmpty())
        return;
    Recordset chart;
    chart.open(Sql("SELECT TACCAutoAllocate FROM QD8TACChart WHERE TACCCode=") + quoted(account), *data);
    if (chart.eof() || toNumber(chart.field(QStringLiteral("TACCAutoAllocate"))) != 1) {
        const int row = d->lineForNew();
        d->setLine(row, account, IsDebit ? Value : Currency(), IsDebit ? Currency() : Value);
        SumColGrid1();
        return;
    }
    Recordset shares;
    shares.open(Sql("SELECT * FROM QD8TACAllocate WHERE TACLTACCCode=") + quoted(account) + " ORDER BY TACLLn", *data);
    QList<ShareRatio> ratios;
    for (; !shares.eof(); shares.moveNext()) {
        const auto ratio = parseShareRatio(shares.text(QStringLiteral("TACLShareRatioText")));
        if (!ratio) {
            Services::messages().critical(bilingual("ปันส่วน", "Allocation"),
                bilingual("สัดส่วน \"%1\" ของบัญชี %2 ไม่ถูกต้อง", "The share \"%1\" of account %2 cannot be read")
                    .arg(shares.text(QStringLiteral("TACLShareRatioText")), account));
            return;
        }
        ratios.append(*ratio);
    }
    if (ratios.isEmpty())
        return;
    const QList<Currency> amounts = splitByShares(Value, ratios);
    const bool held = d->holdTotals;
    d->holdTotals = true;
    d->grid->ShowProgress(bilingual("ปันส่วน", "Allocating"), int(amounts.size()));
    shares.moveFirst();
    for (qsizetype i = 0; i < amounts.size(); ++i, shares.moveNext()) {
        const int row = d->lineForNew();
        d->setLine(row, shares.text(QStringLiteral("TACLToTACCCode")), IsDebit ? amounts[i] : Currency(), IsDebit ? Currency() : amounts[i]);
        for (const auto& [from, to] : {std::pair{"TACLTBraCode", "TGTSTBraCode"}, {"TACLTDivCode", "TGTSTDivCode"},
                 {"TACLTDepCode", "TGTSTDepCode"}, {"TACLTSecCode", "TGTSTSecCode"}})
            d->grid->model()->setText(row - 1, d->column(to) - 1, shares.text(QLatin1String(from)));
        d->grid->SetProgress(int(i + 1));
    }
    d->grid->HideProgress();
    d->holdTotals = held;
    SumColGrid1();
}

// --- Save -----------------------------------------------------------------------------

QString GLControl::UpdateGL(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
    const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam, const QString& iGLDocNo)
{
    return UpdateGL2(iGLDocDate, iRefNo, iRefDate, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam, {}, iGLDocNo);
}

QString GLControl::UpdateGL2(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
    const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam, const QString& BranchCode,
    const QString& iGLDocNo)
{
    return UpdateGL3(iGLDocDate, iRefNo, iRefDate, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam, BranchCode, iGLDocNo, {});
}

QString GLControl::UpdateGL3(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
    const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam, const QString& BranchCode,
    const QString& iGLDocNo, const QString& iRUNMODE)
{
    return UpdateGL4(iGLDocDate, iRefNo, iRefDate, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam, BranchCode, iGLDocNo,
        iRUNMODE, {});
}

QString GLControl::UpdateGL4(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
    const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam, const QString& BranchCode,
    const QString& iGLDocNo, const QString& iRUNMODE, const QString& iPayTo)
{
    return UpdateGL5(iGLDocDate, iRefNo, iRefDate, {}, {}, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam, BranchCode,
        iGLDocNo, iRUNMODE, iPayTo);
}

QString GLControl::UpdateGL5(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
    const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag, const QString& iProjectCode,
    const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo, const QString& iRUNMODE, const QString& iPayTo)
{
    return UpdateGL6(iGLDocDate, iRefNo, iRefDate, iRefNo2, iRefDate2, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam,
        BranchCode, iGLDocNo, iRUNMODE, iPayTo, 0);
}

QString GLControl::UpdateGL6(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
    const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag, const QString& iProjectCode,
    const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo, const QString& iRUNMODE, const QString& iPayTo,
    int iRevision)
{
    return UpdateGL7(iGLDocDate, iRefNo, iRefDate, iRefNo2, iRefDate2, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam,
        BranchCode, iGLDocNo, iRUNMODE, iPayTo, iRevision, 0);
}

QString GLControl::UpdateGL7(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
    const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag, const QString& iProjectCode,
    const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo, const QString& iRUNMODE, const QString& iPayTo,
    int iRevision, int iIsAdjust)
{
    bool detailOnly = false;
    return UpdateGL8(iGLDocDate, iRefNo, iRefDate, iRefNo2, iRefDate2, iSaveForm, iDescription, iBalanceFlag, iProjectCode, ZParam,
        BranchCode, iGLDocNo, iRUNMODE, iPayTo, iRevision, iIsAdjust, detailOnly);
}

namespace {

QVariant dateOrNull(const QDate& date)
{
    return date.isValid() ? QVariant(date) : QVariant();
}

} // namespace

QString GLControl::UpdateGL8(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
    const QDate& iRefDate2, QObject* /*iSaveForm*/, const QString& iDescription, int iBalanceFlag, const QString& iProjectCode,
    const QString& /*ZParam*/, const QString& BranchCode, const QString& iGLDocNo, const QString& iRUNMODE, const QString& iPayTo,
    int iRevision, int iIsAdjust, bool& iUpdateDetailOnly)
{
    d->beforeHostCommit.reset();
    if (GLMethod() == 0)
        return {};
    if (!iGLDocNo.isEmpty())
        setGLDocNo(iGLDocNo);
    d->docDate = iGLDocDate;
    const QString title = bilingual("บันทึกใบสำคัญ", "Saving the voucher");
    QString headerText = iDescription.isEmpty() ? Description() : iDescription;
    if (headerText.isEmpty())
        headerText = QStringLiteral(" ");
    // Checked before anything is written: a statement would be refused halfway otherwise.
    QString problem = d->closedPeriodProblem(iGLDocDate);
    if (problem.isEmpty())
        problem = d->quotedTextProblem({headerText, iRefNo, iRefNo2, iProjectCode, BranchCode, iPayTo, d->inputSource});
    if (!problem.isEmpty()) {
        Services::messages().critical(title, problem);
        return {};
    }
    const bool edit = (iRUNMODE.isEmpty() ? d->runMode : iRUNMODE) == QLatin1String("EDIT");
    const bool drawNumber = GLDocNo().isEmpty();
    const QString source = d->inputSource.isEmpty() ? QStringLiteral("JV") : d->inputSource;
    const QDateTime now = QDateTime::currentDateTime();
    const bool keepCreator = edit && d->stampKnown;
    SumColGrid1();

    // The whole save, on `c`. The stamp of the written header comes back in `stamp`.
    auto write = [&](Connection& c, QDateTime& stamp) {
        // Another user's save or delete since this voucher was loaded refuses the save.
        // The no-op UPDATE takes the header's write lock first, so two saves of one voucher
        // queue instead of both passing the check.
        if (edit && d->stampKnown) {
            c.execute(Sql("UPDATE QD8TGLTrans SET TGLTRevision=TGLTRevision WHERE TGLTNo=") + quoted(d->oldNumber));
            Recordset current;
            current.open(Sql("SELECT TGLTFlag3, TGLTRevision FROM QD8TGLTrans WHERE TGLTNo=") + quoted(d->oldNumber), c);
            if (current.eof() || current.field(QStringLiteral("TGLTFlag3")).toDateTime() != d->loadedFlag3
                || int(toNumber(current.field(QStringLiteral("TGLTRevision")))) != d->loadedRevision)
                throw DbError(DbError::Kind::Conflict, QStringLiteral("voucher changed since it was loaded"))
                    .explain(QStringLiteral("ใบสำคัญ %1 ถูกแก้ไขหรือลบโดยผู้ใช้อื่นหลังจากเปิดขึ้นมา กรุณาเปิดใหม่ก่อนแก้ไข").arg(d->oldNumber),
                        QStringLiteral("Voucher %1 was changed or deleted by another user since it was opened; open it again before editing")
                            .arg(d->oldNumber));
        }
        if (drawNumber) {
            if (!dataObject())
                throw DbError(DbError::Kind::Usage, QStringLiteral("No session: SetFirst was not called"));
            setGLDocNo(dataObject()->nextRunningNumber(NewNumberKey, GLBook(), iGLDocDate, &c));
        }
        const QString number = GLDocNo();
        if (edit) {
            for (const QString& which : {d->oldNumber, number}) {
                c.execute(Sql("DELETE FROM QD8TGLTransSub WHERE TGTSTGLTNo=") + quoted(which));
                if (!iUpdateDetailOnly)
                    c.execute(Sql("DELETE FROM QD8TGLTrans WHERE TGLTNo=") + quoted(which));
            }
        }
        // A save's stamp always differs from the one it replaces: engines keep whole seconds,
        // so a save within the same second as the last one is stamped a second later.
        const QDateTime second = now.addMSecs(-now.time().msec());
        const QDateTime written = d->loadedFlag3.isValid() && second <= d->loadedFlag3 ? d->loadedFlag3.addSecs(1) : second;
        Recordset header;
        header.open(Sql("SELECT * FROM QD8TGLTrans WHERE TGLTNo=") + quoted(number), c, Recordset::adOpenStatic, Recordset::adLockOptimistic);
        if (header.eof())
            header.addNew();
        const std::pair<const char*, QVariant> headerFields[] = {{"TGLTNo", number}, {"TGLTDate", dateOrNull(iGLDocDate)},
            {"TGLTTGLBCode", GLBook()}, {"TGLTMode", GLMethod()}, {"TGLTRefNo", iRefNo}, {"TGLTRefDate", dateOrNull(iRefDate)},
            {"TGLTRefNo2", iRefNo2}, {"TGLTRefDate2", dateOrNull(iRefDate2)}, {"TGLTIsAdjust", iIsAdjust}, {"TGLTPayTo", iPayTo},
            {"TGLTTPrjCode", iProjectCode}, {"TGLTTBraCode", BranchCode}, {"TGLTDescription", headerText},
            {"TGLTInputSource", source}};
        for (const auto& [field, value] : headerFields)
            header.setField(QLatin1String(field), value);
        // The creator stays the one who first saved the voucher.
        if (keepCreator) {
            header.setField(QStringLiteral("TGLTCreateBy"), d->loadedHeader.value(QStringLiteral("TGLTCreateBy")));
            header.setField(QStringLiteral("TGLTCreateDate"), d->loadedHeader.value(QStringLiteral("TGLTCreateDate")));
        } else if (!UserLoginName().isEmpty()) {
            header.setField(QStringLiteral("TGLTCreateBy"), UserLoginName());
            header.setField(QStringLiteral("TGLTCreateDate"), now);
        }
        const std::pair<const char*, QVariant> stampFields[] = {{"TGLTEditCode", QString::number(UserID())},
            {"TGLTEditBy", UserLoginName()}, {"TGLTRevision", iRevision}, {"TGLTEditDate", now},
            {"TGLTAmount", QVariant::fromValue(roundToCents(d->sumDebit))}, {"TGLTBalanceFlag", iBalanceFlag},
            {"TGLTApproveStatus", 0}, {"TGLTCancelStatus", 0}, {"TGLTConfirmStatus", d->active->isChecked() ? 1 : 0},
            {"TGLTFlag3", written}};
        for (const auto& [field, value] : stampFields)
            header.setField(QLatin1String(field), value);
        header.update();
        header.close();

        const int year = iGLDocDate.year(), month = iGLDocDate.month();
        const bool saveZero = d->saveZero->isChecked();
        int n = 0;
        for (int row = 1; row <= d->grid->Rows(); ++row) {
            const Currency debit = d->amount(row, ColDebit), credit = d->amount(row, ColCredit);
            if (!d->isLive(row) || d->cell(row, ColAccount).isEmpty()
                || !(iBalanceFlag == 1 || debit != Currency() || credit != Currency() || saveZero))
                continue;
            ++n;
            Recordset line;
            line.open(Sql("SELECT * FROM QD8TGLTransSub WHERE TGTSTGLTNo = ") + quoted(number) + " AND TGTSLn = " + qint64(n), c,
                Recordset::adOpenStatic, Recordset::adLockOptimistic);
            if (line.eof())
                line.addNew();
            line.setField(QStringLiteral("TGTSTGLTNo"), number);
            line.setField(QStringLiteral("TGTSBlock"), 0);
            line.setField(QStringLiteral("TGTSLn"), n);
            line.setField(QStringLiteral("TGTSInputSource"), source);
            line.setField(QStringLiteral("TGTSStatus"), 0);
            line.setField(QStringLiteral("TGTSTACCCode"), d->cell(row, ColAccount));
            line.setField(QStringLiteral("TGTSDebit"), QVariant::fromValue(debit));
            line.setField(QStringLiteral("TGTSCredit"), QVariant::fromValue(credit));
            for (const char* field : {"TGTSName", "TGTSName2", "TGTSDescription", "TGTSDescription2", "TGTSChequeNo"})
                line.setField(QLatin1String(field), d->cell(row, d->column(field)));
            line.setField(QStringLiteral("TGTSTACPTACYID"), year);
            line.setField(QStringLiteral("TGTSTACPID"), month);
            for (const char* field : {"TGTSTARNCode", "TGTSTAPNCode", "TGTSTPrjCode", "TGTSTBraCode", "TGTSTSAeCode", "TGTSTSZnCode",
                     "TGTSTSZGCode", "TGTSTDivCode", "TGTSTDepCode", "TGTSTSecCode", "TGTSTEmpCode", "TGTSTAssCode", "TGTSTPdtCode",
                     "TGTSTJobNo"})
                line.setField(QLatin1String(field), d->cell(row, d->column(field)));
            line.setField(QStringLiteral("TGTSBalanceFlag"), iBalanceFlag);
            line.setField(QStringLiteral("TGTSFlag1"), 1);
            line.setField(QStringLiteral("TGTSFlag3"), now);
            line.update();
        }
        // The stamp as the database gives it back, for the next save's check.
        Recordset back;
        back.open(Sql("SELECT TGLTFlag3 FROM QD8TGLTrans WHERE TGLTNo=") + quoted(number), c);
        stamp = back.eof() ? QDateTime() : back.field(QStringLiteral("TGLTFlag3")).toDateTime();
    };

    QDateTime stamp;
    for (int attempt = 1;; ++attempt) {
        try {
            if (d->saveConnection) {
                write(*d->saveConnection, stamp);
            } else {
                Connection c;
                c.open(DataConnectionString());
                TransactionGuard transaction(c);
                write(c, stamp);
                transaction.commit();
            }
            break;
        } catch (const DbError& error) {
            if (drawNumber)
                setGLDocNo({});
            if (error.kind() == DbError::Kind::Conflict) {
                Services::messages().critical(title, error.userText(LanguageID()));
                return {};
            }
            // Two first vouchers of a book and month at once: the loser's counter row is
            // refused on its key; its next attempt finds the row and counts on.
            if (drawNumber && !d->saveConnection && error.kind() == DbError::Kind::Engine && attempt < 3)
                continue;
            throw;
        }
    }
    if (d->saveConnection)
        d->beforeHostCommit = Private::Saved{drawNumber ? QString() : GLDocNo(), d->oldNumber, d->stampKnown, d->loadedFlag3,
            d->loadedHeader, d->loadedRevision};
    d->oldNumber = GLDocNo();
    d->loadedFlag3 = stamp;
    d->loadedRevision = iRevision;
    d->stampKnown = true;
    if (!keepCreator && !UserLoginName().isEmpty()) {
        d->loadedHeader.insert(QStringLiteral("TGLTCreateBy"), UserLoginName());
        d->loadedHeader.insert(QStringLiteral("TGLTCreateDate"), now);
    }
    d->balances.clear();
    if (d->refreshAfterSave && !d->saveConnection)
        FillData(d->oldNumber);
    return d->oldNumber;
}

void GLControl::saveRolledBack()
{
    if (!d->beforeHostCommit)
        return;
    const Private::Saved& was = *d->beforeHostCommit;
    setGLDocNo(was.docNo);
    d->oldNumber = was.oldNumber;
    d->stampKnown = was.stampKnown;
    d->loadedFlag3 = was.loadedFlag3;
    d->loadedHeader = was.loadedHeader;
    d->loadedRevision = was.loadedRevision;
    d->beforeHostCommit.reset();
}

} // namespace qd8
