#pragma once

#include "foundation/Currency.h"
#include "widgets/HostedControl.h"

#include <QDate>
#include <memory>

namespace qd8 {

class Connection;
class GridEditor;

enum GLInputVATType { GLInputVATTypeNone = 0, GLInputVATTypePurchase = 1, GLInputVATTypeSale = 2 };
enum GLInputWHTType { GLInputWHTTypeNone = 0, GLInputWHTTypePurchase = 1, GLInputWHTTypeSale = 2 };

// One voucher line as GETGLList gives it to the host.
struct GLLine {
    QString account;
    QString name;
    QString description;
    Currency debit;
    Currency credit;
};

// The general-ledger voucher panel a document form embeds: a header (journal book, voucher
// number, description, posting method) above a grid of debit/credit lines with their
// analysis codes, and a totals line. The host fills the lines (by hand, from an automatic
// posting format, or line by line), asks isReadyToSave, then saves with UpdateGL8, which
// writes QD8TGLTrans and QD8TGLTransSub of the data database in one transaction and returns
// the voucher number. FillData loads a voucher back from QD8VGLTrans.
//
// Grid columns 1 to 5 are account, account name, description, debit, credit (the checks and
// the save address them by number); then the second name and description, the cheque number
// and the analysis codes. F2 on a code column picks from its master table, F9 on an amount
// fills the amount that balances the voucher.
class GLControl : public HostedControl {
    Q_OBJECT
    Q_PROPERTY(QString RUNMODE READ RUNMODE WRITE setRUNMODE)
    Q_PROPERTY(QString FormatGroupAlias READ FormatGroupAlias WRITE setFormatGroupAlias)
    Q_PROPERTY(QString InputSource READ InputSource WRITE setInputSource)
    Q_PROPERTY(bool InputValueReady READ InputValueReady WRITE setInputValueReady)
    Q_PROPERTY(bool FullAuto READ FullAuto WRITE setFullAuto)
    Q_PROPERTY(QString GLDocNo READ GLDocNo WRITE setGLDocNo)
    Q_PROPERTY(QString GLBook READ GLBook WRITE setGLBook)
    Q_PROPERTY(int GLMethod READ GLMethod WRITE setGLMethod)
    Q_PROPERTY(QString Description READ Description WRITE setDescription)
    Q_PROPERTY(bool LockMethod READ LockMethod WRITE setLockMethod)
    Q_PROPERTY(bool ShowGLBook READ ShowGLBook WRITE setShowGLBook)
    Q_PROPERTY(bool ShowGLDoc READ ShowGLDoc WRITE setShowGLDoc)
    Q_PROPERTY(bool ShowGLDocDescription READ ShowGLDocDescription WRITE setShowGLDocDescription)
    Q_PROPERTY(bool ShowMethod READ ShowMethod WRITE setShowMethod)
    Q_PROPERTY(bool ShowSumary READ ShowSumary WRITE setShowSumary)
    Q_PROPERTY(bool ShowTools READ ShowTools WRITE setShowTools)

public:
    // Grid columns the checks and the save address by number.
    enum Column { ColAccount = 1, ColName = 2, ColDescription = 3, ColDebit = 4, ColCredit = 5 };

    explicit GLControl(QWidget* parent = nullptr);
    ~GLControl() override;

    // The host form, the session objects and the posting-format group; reads the panel's
    // options (see docs/architecture.md, "General-ledger voucher panel").
    void SetFirst(QWidget* iParentObj, std::shared_ptr<DataObject> iDataObj, std::shared_ptr<AppObject> iAppObj,
        std::shared_ptr<ClientObject> iClientObj, const QString& iFormatGroupAlias);

    // The twenty amounts an automatic posting format refers to as X1..X20.
    Currency inValueX(int n) const;
    void setInValueX(int n, Currency value);
#define QD8_GL_INPUT(n) \
    Currency inValueX##n() const { return inValueX(n); } \
    void setinValueX##n(Currency value) { setInValueX(n, value); }
    QD8_GL_INPUT(1) QD8_GL_INPUT(2) QD8_GL_INPUT(3) QD8_GL_INPUT(4) QD8_GL_INPUT(5)
    QD8_GL_INPUT(6) QD8_GL_INPUT(7) QD8_GL_INPUT(8) QD8_GL_INPUT(9) QD8_GL_INPUT(10)
    QD8_GL_INPUT(11) QD8_GL_INPUT(12) QD8_GL_INPUT(13) QD8_GL_INPUT(14) QD8_GL_INPUT(15)
    QD8_GL_INPUT(16) QD8_GL_INPUT(17) QD8_GL_INPUT(18) QD8_GL_INPUT(19) QD8_GL_INPUT(20)
#undef QD8_GL_INPUT

    bool InputValueReady() const;
    void setInputValueReady(bool ready);
    QString FormatGroupAlias() const;
    void setFormatGroupAlias(const QString& alias);
    QString InputSource() const;
    void setInputSource(const QString& source);
    // Kept for the host (the document forms decide what a fully automatic voucher means);
    // the panel itself does not act on it.
    bool FullAuto() const;
    void setFullAuto(bool fullAuto);
    QString RUNMODE() const;
    void setRUNMODE(const QString& mode);

    QString GLDocNo() const;
    void setGLDocNo(const QString& number);
    QString GLBook() const;
    void setGLBook(const QString& code);
    // 0 no voucher, 1 lines keyed, 2 lines from the posting format.
    int GLMethod() const;
    void setGLMethod(int method);
    QString Description() const;
    void setDescription(const QString& text);
    bool LockMethod() const;
    void setLockMethod(bool locked);
    // The voucher date, for the closed-period check of isReadyToSave (FillData and the save
    // set it too).
    QDate GLDocDate() const;
    void setGLDocDate(const QDate& date);

    bool ShowGLBook() const;
    void setShowGLBook(bool show);
    bool ShowGLDoc() const;
    void setShowGLDoc(bool show);
    bool ShowGLDocDescription() const;
    void setShowGLDocDescription(bool show);
    bool ShowMethod() const;
    void setShowMethod(bool show);
    bool ShowSumary() const;
    void setShowSumary(bool show);
    bool ShowTools() const;
    void setShowTools(bool show);
    Q_INVOKABLE void GridShow();
    // 1 editing (new or EDIT), 0 viewing only.
    Q_INVOKABLE void EditStatus(int iStatus);

    // Loads a voucher from QD8VGLTrans; its header stamp is kept for the save's check that
    // nobody changed the voucher since. An unknown number leaves an empty panel.
    Q_INVOKABLE void FillData(const QString& iGLDocNo);
    // A header field FillData read that the panel does not show (TGLTRefNo, TGLTRefDate,
    // TGLTRefNo2, TGLTRefDate2, TGLTTPrjCode, TGLTTBraCode, TGLTPayTo, TGLTRevision,
    // TGLTIsAdjust, TGLTCreateBy, TGLTCreateDate).
    QVariant loadedHeader(const QString& field) const;
    // Clears the lines and fills them from the posting format (asks the host first).
    Q_INVOKABLE void FillDataFormat();
    // Raises BeforeFillCustomFormat, then (unless the host filled the lines itself or the
    // inputs are not ready and ForceFill is false) fills the lines of FormatGroupAlias with
    // the amounts inValueX1..20, then raises FillAutoFormat. False when nothing was filled.
    Q_INVOKABLE bool FillAutoFormatNow(bool ForceFill = false);
    Q_INVOKABLE void FillLine(const QString& TAccCode, bool IsDebit, Currency Value);
    // A line on the account of map key MAPKEY (or TAccCode when given); an allocating
    // account spreads Value over its QD8TACAllocate rows. ConObj: an open connection to read
    // on, or nullptr to open one.
    void FillAutoLineTR(const QString& MAPKEY, bool IsDebit, Currency Value, Connection* ConObj, const QString& TAccCode = {});
    // The description of line iRecord (0: of every line); iCustom2 the second description.
    Q_INVOKABLE void FillDescription(int iRecord = 0, const QString& iDescription = {}, const QString& iCustom2 = {});
    // Analysis codes of line iRecord (0: of every line), widened over time; an empty code
    // leaves the line's code as it is.
    Q_INVOKABLE void FillParam(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode);
    Q_INVOKABLE void FillParam2(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
        const QString& iBranchCode);
    Q_INVOKABLE void FillParam3(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
        const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode);
    Q_INVOKABLE void FillParam4(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
        const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode,
        const QString& iEmpCode);
    Q_INVOKABLE void FillParam5(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
        const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode,
        const QString& iEmpCode, const QString& iSAeCode, const QString& iSZnCode, const QString& iSZGCode);
    Q_INVOKABLE void FillParam6(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
        const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode,
        const QString& iEmpCode, const QString& iSAeCode, const QString& iSZnCode, const QString& iSZGCode,
        const QString& iAssCode, const QString& iPdtCode, const QString& iJobNo);
    // A closing line: the account's saved balance of Year and Period (0: the whole year),
    // on the side that brings it to zero. Nothing when the balance is zero.
    Q_INVOKABLE void AddList(const QString& ACCode, int Year, int Period);
    // Swaps debit and credit on every line.
    Q_INVOKABLE void ReverseAllSide();

    // Deletes the lines whose debit and credit are both zero.
    Q_INVOKABLE void CLEARZEROGL();
    // Debit lines first, then credit lines, each by account (stable).
    Q_INVOKABLE void SORTGL();
    // One line per account, side, description and analysis codes, amounts added.
    Q_INVOKABLE void GROUPGL();
    // Totals the debit and credit columns, shows them and raises ValueChange.
    Q_INVOKABLE void SumColGrid1();
    // Ticks (1) or clears (0) the save-zero box: lines of zero amounts are saved too.
    Q_INVOKABLE void SetSaveZero(int iValue);
    // Bulk work: Status true shows the grid's progress caption and holds the totals until
    // Status false, which hides it and totals once.
    Q_INVOKABLE void SpeedProcess2(bool Status, const QString& NewCaption = {});
    // Ready for a new voucher: no lines, no number, no old number, no loaded stamp.
    Q_INVOKABLE void ClearOldRecord();
    QList<GLLine> GETGLList() const;

    // "" when the voucher may be saved, else the message to show (the field concerned
    // takes the focus): no book, debit and credit unequal, a zero voucher, then a voucher
    // dated in a closed accounting year or period, a text holding a quote.
    Q_INVOKABLE QString isReadyToSave();
    Q_INVOKABLE bool isGLZero();
    Q_INVOKABLE bool isGLZero2(bool ForceActionControl = false);
    Q_INVOKABLE bool isGLZeroDiff();
    Currency GETSumDebit() const;
    Currency GETSumCredit() const;
    GLInputVATType GetInputVATType() const;
    GLInputWHTType GetInputWHTType() const;

    // The save, widened over time; each form calls the next, only UpdateGL8 works. Returns
    // the voucher number, "" when nothing was saved. iSaveForm and ZParam are accepted and
    // not used.
    QString UpdateGL(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
        const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam,
        const QString& iGLDocNo = {});
    QString UpdateGL2(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
        const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam,
        const QString& BranchCode, const QString& iGLDocNo = {});
    QString UpdateGL3(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
        const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam,
        const QString& BranchCode, const QString& iGLDocNo = {}, const QString& iRUNMODE = {});
    QString UpdateGL4(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, QObject* iSaveForm,
        const QString& iDescription, int iBalanceFlag, const QString& iProjectCode, const QString& ZParam,
        const QString& BranchCode, const QString& iGLDocNo = {}, const QString& iRUNMODE = {}, const QString& iPayTo = {});
    QString UpdateGL5(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
        const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag,
        const QString& iProjectCode, const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo = {},
        const QString& iRUNMODE = {}, const QString& iPayTo = {});
    QString UpdateGL6(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
        const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag,
        const QString& iProjectCode, const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo = {},
        const QString& iRUNMODE = {}, const QString& iPayTo = {}, int iRevision = 0);
    QString UpdateGL7(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
        const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag,
        const QString& iProjectCode, const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo = {},
        const QString& iRUNMODE = {}, const QString& iPayTo = {}, int iRevision = 0, int iIsAdjust = 0);
    // With iUpdateDetailOnly the header row is kept and rewritten in place, only the lines
    // are replaced. A voucher loaded for EDIT that another user saved or deleted since is
    // refused with a message, and so is a text holding a quote; nothing is written then.
    QString UpdateGL8(const QDate& iGLDocDate, const QString& iRefNo, const QDate& iRefDate, const QString& iRefNo2,
        const QDate& iRefDate2, QObject* iSaveForm, const QString& iDescription, int iBalanceFlag,
        const QString& iProjectCode, const QString& ZParam, const QString& BranchCode, const QString& iGLDocNo,
        const QString& iRUNMODE, const QString& iPayTo, int iRevision, int iIsAdjust, bool& iUpdateDetailOnly);

    // The host's own open connection to the data database, inside the host's transaction:
    // the save then writes on it without a transaction of its own, so a document and its
    // voucher commit (or roll back) together. nullptr (the default): the save opens its own
    // connection and transaction.
    void setSaveConnection(Connection* connection);
    // The host rolled back the transaction a save wrote on its connection: the panel forgets
    // that save (a new voucher's drawn number, the stamp it checks the next save against).
    void saveRolledBack();

    GridEditor* grid() const;
    // The balance (debit - credit of the saved lines) of the current line's account.
    Currency currentAccountBalance() const;

Q_SIGNALS:
    void FillAutoFormat();
    void BeforeFillCustomFormat();
    void ValueChange(qd8::Currency SumDebit, qd8::Currency SumCredit);

protected:
    GridEditor* hostedGrid() const override;
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Private;
    std::unique_ptr<Private> const d;
};

} // namespace qd8
