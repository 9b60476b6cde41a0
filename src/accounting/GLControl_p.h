#pragma once

#include <optional>

#include "accounting/GLControl.h"

#include <QDateTime>
#include <QHash>
#include <QVariant>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolBar;

namespace qd8 {

// A grid column of the voucher lines: the QD8TGLTransSub field it holds, its captions and,
// for a code column, the master table its F2 pick list reads.
struct GLColumnSpec {
    const char* field;
    const char* thai;
    const char* english;
    int width;
    bool amount;
    const char* table = nullptr;   // pick list source
    const char* key = nullptr;
    const char* nameStem = nullptr;
    const char* condition = nullptr;
};

// Every grid column in grid order (column n is spec n - 1); the first five are fixed.
extern const GLColumnSpec GLColumns[];
extern const int GLColumnCount;

class GLControl::Private {
public:
    explicit Private(GLControl* q) : q(q) {}

    // Every option of the panel is read here: the value in force for the session (the
    // user's, the workstation's, the branch's, the company's, else the default); 0 without a
    // data object.
    double option(const QString& alias) const;

    // Grid access by field name and the amount cache behind the totals.
    int column(const char* field) const;
    QString cell(int row, int col) const;
    Currency amount(int row, int col) const;
    bool isLive(int row) const;  // not marked deleted
    void markAmountsDirty() { cacheValid = false; }

    // A new line at the end (or the last line when it holds no account yet).
    int lineForNew();
    void setLine(int row, const QString& account, Currency debit, Currency credit, const QString& description = {});
    // Account name (both languages) from the chart; false for an unknown or control account.
    bool lookupAccount(const QString& code, QString& name, QString& name2) const;
    void fillAccountName(int row);
    void pickIntoCell();
    void pickBook();
    // F9: the amount that balances the voucher into the current amount cell.
    void balanceIntoCell();
    void showBalance();
    void showTotals();
    // Which of the words the first live line's "name===description" (without "-") holds:
    // its index, -1 when no line holds one.
    int firstMention(const QStringList& words) const;
    void retranslate();
    // The message for the first text holding a quote, among `texts`, the book, the number
    // and every text cell; "" when none does.
    QString quotedTextProblem(QStringList texts) const;
    // The closed year or period the date falls in, as a message; "" when it is open.
    QString closedPeriodProblem(const QDate& date) const;

    GLControl* q;
    GridEditor* grid = nullptr;
    QLineEdit* book = nullptr;
    QLabel* bookName = nullptr;
    QLineEdit* docNo = nullptr;
    QLineEdit* description = nullptr;
    QComboBox* method = nullptr;
    QCheckBox* active = nullptr;
    QCheckBox* saveZero = nullptr;
    QWidget* bookRow = nullptr;
    QWidget* docRow = nullptr;
    QWidget* descriptionRow = nullptr;
    QWidget* methodRow = nullptr;
    QWidget* summary = nullptr;
    QToolBar* tools = nullptr;
    QLabel* bookCaption = nullptr;
    QLabel* docCaption = nullptr;
    QLabel* descriptionCaption = nullptr;
    QLabel* sumDebitLabel = nullptr;
    QLabel* sumCreditLabel = nullptr;
    QLabel* balanceLabel = nullptr;

    Currency x[20];
    bool inputReady = false;
    QString formatGroup;
    // The posting format as last read, with each line's account resolved: amounts typed
    // into a document refill the lines from it without reading the format again. Read
    // again when the format group or the database changes, or the clerk fills from it.
    struct FormatLine {
        QString ln, formula, side, account, description, description2;
    };
    QString formatReadFor;  // format group and connection string; "" until read
    QString formatBook;     // "" when the group is not there
    QList<FormatLine> formatLines;
    QString inputSource;
    QString runMode;
    bool fullAuto = false;
    bool lockMethod = false;
    bool editing = true;
    QDate docDate;

    // Options: confirmed by default (UseDOStatustStampActivetoSV), lines read-only (RDMode),
    // reload after a save (EnableGLRefresh).
    bool activeByDefault = false;
    bool linesReadOnly = false;
    bool refreshAfterSave = false;

    // The number the voucher was last saved (or loaded) under, and its header stamp then.
    QString oldNumber;
    bool stampKnown = false;
    QDateTime loadedFlag3;
    QVariantHash loadedHeader;  // the header fields the panel does not show, as loaded
    int loadedRevision = 0;
    // What a save on the host's connection replaced, until the host commits: its rollback
    // brings it back (saveRolledBack).
    struct Saved {
        QString docNo, oldNumber;
        bool stampKnown = false;
        QDateTime loadedFlag3;
        QVariantHash loadedHeader;
        int loadedRevision = 0;
    };
    std::optional<Saved> beforeHostCommit;
    Connection* saveConnection = nullptr;

    // Totals: per-row amounts parsed once, again only for rows changed since.
    QList<Currency> debits;
    QList<Currency> credits;
    bool cacheValid = false;
    QList<int> dirtyRows;
    Currency sumDebit;
    Currency sumCredit;
    bool holdTotals = false;
    bool totalsShowPending = false;
    mutable QHash<QString, Currency> balances;
};

} // namespace qd8
