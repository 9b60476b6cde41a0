#include "accounting/GLControl_p.h"

#include "database/ListService.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace qd8 {

const GLColumnSpec GLColumns[] = {
    {"TGTSTACCCode", "รหัสบัญชี", "Account", 1400, false, "QD8TACChart", "TACCCode", "TACCName", "TACCLevel >= 2 AND TACCISControl=0"},
    {"TGTSName", "ชื่อบัญชี", "Account name", 2800, false},
    {"TGTSDescription", "รายละเอียด", "Description", 3000, false},
    {"TGTSDebit", "เดบิต (F9=Auto)", "Debit (F9=Auto)", 1500, true},
    {"TGTSCredit", "เครดิต (F9=Auto)", "Credit (F9=Auto)", 1500, true},
    {"TGTSName2", "ชื่อบัญชี2", "Account name 2", 2000, false},
    {"TGTSDescription2", "รายละเอียด2", "Description 2", 2000, false},
    {"TGTSChequeNo", "เลขที่เช็ค", "Cheque no.", 1200, false},
    {"TGTSTARNCode", "รหัสลูกหนี้", "Customer", 1200, false, "QD8TAR", "TARNCode", "TARNName", "TARNFlag1=1"},
    {"TGTSTAPNCode", "รหัสเจ้าหนี้", "Vendor", 1200, false, "QD8TAP", "TAPNCode", "TAPNName", "TAPNFlag1=1"},
    {"TGTSTPrjCode", "รหัสโครงการ", "Project", 1200, false, "QD8TProject", "TPrjCode", "TPrjName", "TPrjFlag1=1"},
    {"TGTSTSZGCode", "รหัสกลุ่มโซนขาย", "Sales-zone group", 1200, false},
    {"TGTSTSZnCode", "รหัสโซนขาย", "Sales zone", 1200, false},
    {"TGTSTSAeCode", "รหัสเขตการขาย", "Sales area", 1200, false},
    {"TGTSTBraCode", "รหัสสาขา", "Branch", 1200, false, "QD8TBranch", "TBraCode", "TBraName", "TBraFlag1=1"},
    {"TGTSTDivCode", "รหัสฝ่าย", "Division", 1200, false, "QD8TDivision", "TDivCode", "TDivName", "TDivFlag1=1"},
    {"TGTSTDepCode", "รหัสแผนก", "Department", 1200, false, "QD8TDepartment", "TDepCode", "TDepName", "TDepFlag1=1"},
    {"TGTSTSecCode", "รหัสหน่วยงาน", "Section", 1200, false, "QD8TSection", "TSecCode", "TSecName", "TSecFlag1=1"},
    {"TGTSTEmpCode", "รหัสพนักงาน", "Employee", 1200, false, "QD8TEmployee", "TEmpCode", "TEmpFullName", "TEmpFlag1=1"},
    {"TGTSTAssCode", "รหัสสินทรัพย์", "Asset", 1200, false},
    {"TGTSTPdtCode", "รหัสสินค้า", "Product", 1200, false, "QD8TProduct", "TPdtCode", "TPdtName", "TPdtFlag1=1"},
    {"TGTSTJobNo", "เลขที่งาน", "Job", 1200, false, "QD8TJob", "TJobNo", "TJobCustomerName", "TJobCancelStatus=0"},
};
const int GLColumnCount = int(std::size(GLColumns));

namespace {

constexpr int KeyF2 = 113;
constexpr int KeyF9 = 120;

Currency parseAmount(const QString& stored)
{
    return Currency::parse(stored).value_or(Currency());
}

} // namespace

// --- Private --------------------------------------------------------------------------

double GLControl::Private::option(const QString& alias, OptionScope scope) const
{
    DataObject* data = q->dataObject();
    if (!data)
        return 0;
    try {
        return data->optionNumber(alias, scope, scope == OptionScope::User ? QString::number(data->userId()) : QString());
    } catch (const DbError&) {
        return 0;  // an option that cannot be read keeps its default
    }
}

int GLControl::Private::column(const char* field) const
{
    for (int i = 0; i < GLColumnCount; ++i)
        if (qstrcmp(GLColumns[i].field, field) == 0)
            return i + 1;
    return 0;
}

QString GLControl::Private::cell(int row, int col) const
{
    return grid->model()->storedText(row - 1, col - 1);
}

Currency GLControl::Private::amount(int row, int col) const
{
    return parseAmount(cell(row, col));
}

bool GLControl::Private::isLive(int row) const
{
    return !grid->model()->rowEdit(row - 1).deleted;
}

QString GLControl::Private::dataConnectionString() const
{
    return q->DataConnectionString();
}

int GLControl::Private::lineForNew()
{
    const int rows = grid->Rows();
    if (rows > 0 && cell(rows, ColAccount).isEmpty() && isLive(rows))
        return rows;
    const bool refused = grid->RefuseAdd();
    grid->setRefuseAdd(false);
    const int row = grid->AddRow();
    grid->setRefuseAdd(refused);
    return row;
}

void GLControl::Private::setLine(int row, const QString& account, Currency debit, Currency credit, const QString& text)
{
    GridEditorModel* model = grid->model();
    model->setText(row - 1, ColAccount - 1, account);
    fillAccountName(row);
    model->setText(row - 1, ColDescription - 1, text.isEmpty() ? description->text() : text);
    model->setValue(row - 1, ColDebit - 1, QVariant::fromValue(debit));
    model->setValue(row - 1, ColCredit - 1, QVariant::fromValue(credit));
}

bool GLControl::Private::lookupAccount(const QString& code, QString& name, QString& name2) const
{
    try {
        Connection data;
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TACCName, TACCName2 FROM QD8TACChart WHERE TACCCode=") + quoted(code)
                + " AND TACCLevel >= 2 AND TACCISControl=0",
            data);
        if (rs.eof())
            return false;
        name = rs.text(QStringLiteral("TACCName"));
        name2 = rs.text(QStringLiteral("TACCName2"));
        return true;
    } catch (const DbError&) {
        return false;  // a code that cannot even be asked for (a quote) is unknown
    }
}

void GLControl::Private::fillAccountName(int row)
{
    QString name, name2;
    const QString code = cell(row, ColAccount);
    if (!code.isEmpty())
        lookupAccount(code, name, name2);
    grid->model()->setText(row - 1, ColName - 1, name);
    grid->model()->setText(row - 1, column("TGTSName2") - 1, name2);
}

void GLControl::Private::pickIntoCell()
{
    const int row = grid->Row(), col = grid->Col();
    if (row < 1 || col < 1 || col > GLColumnCount || !GLColumns[col - 1].table || grid->ReadOnly())
        return;
    const GLColumnSpec& spec = GLColumns[col - 1];
    const QString key = QLatin1String(spec.key);
    PickRequest request;
    request.title = q->bilingual(spec.thai, spec.english);
    request.keyField = key;
    request.fieldList = key + QLatin1Char(',') + QLatin1String(spec.nameStem) + q->nameSuffix();
    request.captionList = q->bilingual("รหัส,ชื่อ", "Code,Name");
    request.widthList = QStringLiteral("1500,4000");
    request.typeList = QStringLiteral("0,0");
    request.source = QLatin1String(spec.table) + QStringLiteral(" WHERE ") + QLatin1String(spec.condition) + QStringLiteral(" ORDER BY ") + key;
    request.connectionString = dataConnectionString();
    const QString picked = SessionServices::listService().PickFromList(request);
    if (picked.isEmpty())
        return;
    grid->SetValue(row, col, picked);
    if (col == ColAccount) {
        fillAccountName(row);
        showBalance();
    }
}

void GLControl::Private::pickBook()
{
    if (book->isReadOnly())
        return;
    PickRequest request;
    request.title = q->bilingual("สมุดรายวัน", "Journal book");
    request.keyField = QStringLiteral("TGLBCode");
    request.fieldList = QStringLiteral("TGLBCode,TGLBName") + q->nameSuffix();
    request.captionList = q->bilingual("รหัส,ชื่อ", "Code,Name");
    request.widthList = QStringLiteral("1500,4000");
    request.typeList = QStringLiteral("0,0");
    request.source = QStringLiteral("QD8TGLBook WHERE TGLBFlag1=1 ORDER BY TGLBCode");
    request.connectionString = dataConnectionString();
    const QString picked = SessionServices::listService().PickFromList(request);
    if (!picked.isEmpty())
        q->setGLBook(picked);
}

void GLControl::Private::balanceIntoCell()
{
    const int row = grid->Row(), col = grid->Col();
    if (row < 1 || (col != ColDebit && col != ColCredit) || grid->ReadOnly())
        return;
    q->SumColGrid1();
    const bool live = isLive(row);
    // What the other lines leave open, as debit minus credit.
    const Currency open = (sumDebit - (live ? amount(row, ColDebit) : Currency()))
        - (sumCredit - (live ? amount(row, ColCredit) : Currency()));
    Currency wanted = col == ColDebit ? -open : open;
    int target = col, other = col == ColDebit ? ColCredit : ColDebit;
    if (wanted < Currency()) {
        wanted = -wanted;
        std::swap(target, other);
    }
    grid->SetValue(row, target, QVariant::fromValue(wanted));
    grid->SetValue(row, other, QVariant::fromValue(Currency()));
    q->SumColGrid1();
}

void GLControl::Private::showBalance()
{
    const int row = grid->Row();
    const QString account = row > 0 ? cell(row, ColAccount) : QString();
    if (account.isEmpty()) {
        balanceLabel->clear();
        return;
    }
    const Currency balance = q->currentAccountBalance();
    balanceLabel->setText(q->bilingual("ยอดคงเหลือ %1: %2", "Balance of %1: %2")
                              .arg(account, grid->column(ColDebit).displayText(balance.toString(), DateEra::Gregorian)));
}

void GLControl::Private::retranslate()
{
    for (int col = 1; col <= GLColumnCount && col <= grid->Cols(); ++col)
        grid->setTextMatrix(0, col, q->bilingual(GLColumns[col - 1].thai, GLColumns[col - 1].english));
    grid->setLanguageID(q->LanguageID());
    bookCaption->setText(q->bilingual("สมุดรายวัน", "Journal book"));
    docCaption->setText(q->bilingual("เลขที่ใบสำคัญ", "Voucher no."));
    descriptionCaption->setText(q->bilingual("คำอธิบาย", "Description"));
    active->setText(q->bilingual("ยืนยันรายการ", "Confirmed"));
    saveZero->setText(q->bilingual("บันทึกรายการยอดเป็น 0", "Save zero lines"));
    // Screen readers name the boxes by their captions.
    book->setAccessibleName(bookCaption->text());
    docNo->setAccessibleName(docCaption->text());
    description->setAccessibleName(descriptionCaption->text());
    active->setAccessibleName(active->text());
    saveZero->setAccessibleName(saveZero->text());
    const int index = method->currentIndex();
    method->clear();
    method->addItems({q->bilingual("ไม่บันทึกบัญชี", "No voucher"), q->bilingual("บันทึกบัญชีเอง", "Keyed lines"),
        q->bilingual("บันทึกบัญชีอัตโนมัติ", "Automatic format")});
    method->setCurrentIndex(qMax(0, index));
    const QList<QAction*> actions = tools->actions();
    const char* captions[][2] = {{"บันทึกอัตโนมัติ", "Automatic"}, {"ลบรายการยอด 0", "Clear zero"}, {"เรียงรายการ", "Sort"},
        {"รวมรายการ", "Group"}, {"สลับเดบิต/เครดิต", "Reverse sides"}};
    for (int i = 0; i < actions.size() && i < int(std::size(captions)); ++i)
        actions[i]->setText(q->bilingual(captions[i][0], captions[i][1]));
    q->SumColGrid1();
}

QString GLControl::Private::quotedTextProblem(QStringList texts) const
{
    texts << book->text() << docNo->text();
    for (int row = 1; row <= grid->Rows(); ++row)
        for (int col = 1; col <= GLColumnCount; ++col)
            if (!GLColumns[col - 1].amount)
                texts.append(cell(row, col));
    for (const QString& text : std::as_const(texts))
        if (text.contains(QLatin1Char('\'')))
            return q->bilingual("ข้อความ \"%1\" มีเครื่องหมาย ' ซึ่งบันทึกไม่ได้ กรุณาแก้ไข",
                       "The text \"%1\" holds a ' which cannot be saved; please change it")
                .arg(text);
    return {};
}

QString GLControl::Private::closedPeriodProblem(const QDate& date) const
{
    if (!date.isValid())
        return {};
    try {
        Connection data;
        data.open(dataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT TACYClosed FROM QD8TACYear WHERE TACYID=") + qint64(date.year()) + " AND TACYClosed=1", data);
        if (!rs.eof())
            return q->bilingual("ปีบัญชี %1 ปิดแล้ว บันทึกใบสำคัญในปีนี้ไม่ได้", "The accounting year %1 is closed; no voucher may be saved in it")
                .arg(shownYear(date.year(), DateLook::forLanguage(q->LanguageID()).era));
        rs.open(Sql("SELECT TACPClosed FROM QD8TACPeriod WHERE TACPTACYID=") + qint64(date.year()) + " AND TACPID=" + qint64(date.month())
                + " AND TACPClosed=1",
            data);
        if (!rs.eof())
            return q->bilingual("งวดบัญชี %1 ปิดแล้ว บันทึกใบสำคัญในงวดนี้ไม่ได้", "The accounting period %1 is closed; no voucher may be saved in it")
                .arg(monthYearText(date.month(), date.year(), DateLook::forLanguage(q->LanguageID())));
    } catch (const DbError&) {
    }
    return {};
}

// --- GLControl ------------------------------------------------------------------------

GLControl::GLControl(QWidget* parent)
    : HostedControl(parent)
    , d(new Private(this))
{
    d->grid = new GridEditor(this);
    d->book = new QLineEdit(this);
    d->bookName = new QLabel(this);
    d->docNo = new QLineEdit(this);
    d->description = new QLineEdit(this);
    d->method = new QComboBox(this);
    d->active = new QCheckBox(this);
    d->saveZero = new QCheckBox(this);
    d->tools = new QToolBar(this);
    d->bookCaption = new QLabel(this);
    d->docCaption = new QLabel(this);
    d->descriptionCaption = new QLabel(this);
    d->sumDebitLabel = new QLabel(this);
    d->sumCreditLabel = new QLabel(this);
    d->balanceLabel = new QLabel(this);
    d->book->setObjectName(QStringLiteral("GLBook"));
    d->docNo->setObjectName(QStringLiteral("GLDocNo"));
    d->description->setObjectName(QStringLiteral("Description"));
    d->method->setObjectName(QStringLiteral("GLMethod"));

    auto row = [this](std::initializer_list<QWidget*> widgets, int stretchLast) {
        auto* box = new QWidget(this);
        auto* layout = new QHBoxLayout(box);
        layout->setContentsMargins(0, 0, 0, 0);
        for (QWidget* widget : widgets)
            layout->addWidget(widget, widget == *(widgets.end() - 1) ? stretchLast : 0);
        return box;
    };
    d->methodRow = row({d->method, d->active, d->saveZero}, 1);
    d->bookRow = row({d->bookCaption, d->book, d->bookName}, 1);
    d->docRow = row({d->docCaption, d->docNo}, 1);
    d->descriptionRow = row({d->descriptionCaption, d->description}, 1);
    d->summary = row({d->balanceLabel, d->sumDebitLabel, d->sumCreditLabel}, 0);
    d->tools->addAction(QString(), this, [this] { FillAutoFormatNow(true); });
    d->tools->addAction(QString(), this, &GLControl::CLEARZEROGL);
    d->tools->addAction(QString(), this, &GLControl::SORTGL);
    d->tools->addAction(QString(), this, &GLControl::GROUPGL);
    d->tools->addAction(QString(), this, &GLControl::ReverseAllSide);
    d->tools->setToolButtonStyle(Qt::ToolButtonTextOnly);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    for (QWidget* widget : {d->methodRow, d->bookRow, d->docRow, d->descriptionRow, static_cast<QWidget*>(d->tools)})
        layout->addWidget(widget);
    layout->addWidget(d->grid, 1);
    layout->addWidget(d->summary);

    d->book->installEventFilter(this);
    connect(d->book, &QLineEdit::editingFinished, this, [this] { setGLBook(d->book->text()); });
    connect(d->grid, &GridEditor::KeyDown, this, [this](int& keyCode, int) {
        if (keyCode == KeyF2) {
            d->pickIntoCell();
            keyCode = 0;
        } else if (keyCode == KeyF9) {
            d->balanceIntoCell();
            keyCode = 0;
        }
    });
    d->grid->setValidator([this](int, int col, const QVariant& value) -> QString {
        QString name, name2;
        const QString code = qd8::text(value).trimmed();
        if (col != ColAccount || code.isEmpty() || d->lookupAccount(code, name, name2))
            return {};
        return bilingual("ไม่พบรหัสบัญชี %1 หรือเป็นบัญชีคุม", "Account %1 does not exist or is a control account").arg(code);
    });
    connect(d->grid, &GridEditor::AfterChange, this, [this](int row, int col) {
        if (col == ColAccount) {
            d->fillAccountName(row);
            d->showBalance();
        } else if ((col == ColDebit || col == ColCredit) && d->amount(row, col) != Currency()) {
            d->grid->SetValue(row, col == ColDebit ? ColCredit : ColDebit, QVariant::fromValue(Currency()));
        }
        SumColGrid1();
    });
    connect(d->grid, &GridEditor::AfterAddRow, this, [this](int row) {
        // A new line starts with what is still open, on the side that closes it.
        SumColGrid1();
        const Currency open = d->sumDebit - d->sumCredit;
        if (open != Currency())
            d->grid->SetValue(row, open > Currency() ? ColCredit : ColDebit, QVariant::fromValue(open > Currency() ? open : -open));
        if (row > 1)
            d->grid->SetValue(row, ColDescription, d->cell(row - 1, ColDescription));
        SumColGrid1();
    });
    connect(d->grid, &GridEditor::AfterDeleteRow, this, [this] { SumColGrid1(); });
    GridEditorModel* model = d->grid->model();
    connect(model, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex& from, const QModelIndex& to) {
        if (d->cacheValid && to.column() >= ColDebit - 1 && from.column() <= ColCredit - 1)
            for (int r = from.row(); r <= to.row(); ++r)
                d->dirtyRows.append(r);
    });
    for (auto signal : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(model, signal, this, [this] { d->markAmountsDirty(); });
    connect(model, &QAbstractItemModel::modelReset, this, [this] { d->markAmountsDirty(); });
    if (auto* view = d->grid->findChild<QAbstractItemView*>())
        connect(view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] { d->showBalance(); });

    GridShow();
    d->retranslate();
    setGLMethod(1);
}

GLControl::~GLControl() = default;

void GLControl::SetFirst(QWidget* iParentObj, std::shared_ptr<DataObject> iDataObj, std::shared_ptr<AppObject> iAppObj,
    std::shared_ptr<ClientObject> iClientObj, const QString& iFormatGroupAlias)
{
    HostedControl::SetFirst(std::move(iDataObj), std::move(iAppObj), std::move(iClientObj));
    takeSessionFromDataObject();
    d->parentObj = iParentObj;
    if (iParentObj)
        SetParentForm(iParentObj);
    d->formatGroup = iFormatGroupAlias;
    d->activeByDefault = d->option(QStringLiteral("UseDOStatustStampActivetoSV")) != 0;
    d->linesReadOnly = d->option(QStringLiteral("RDMode")) != 0;
    d->refreshAfterSave = d->option(QStringLiteral("EnableGLRefresh")) != 0;
    d->active->setChecked(d->activeByDefault);
    EditStatus(d->editing ? 1 : 0);
}

GridEditor* GLControl::grid() const { return d->grid; }
GridEditor* GLControl::hostedGrid() const { return d->grid; }

void GLControl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    HostedControl::changeEvent(event);
}

bool GLControl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->book && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2) {
        d->pickBook();
        return true;
    }
    return HostedControl::eventFilter(watched, event);
}

Currency GLControl::inValueX(int n) const { return n >= 1 && n <= 20 ? d->x[n - 1] : Currency(); }
void GLControl::setInValueX(int n, Currency value)
{
    if (n >= 1 && n <= 20)
        d->x[n - 1] = value;
}
bool GLControl::InputValueReady() const { return d->inputReady; }
void GLControl::setInputValueReady(bool ready) { d->inputReady = ready; }
QString GLControl::FormatGroupAlias() const { return d->formatGroup; }
void GLControl::setFormatGroupAlias(const QString& alias) { d->formatGroup = alias; }
QString GLControl::InputSource() const { return d->inputSource; }
void GLControl::setInputSource(const QString& source) { d->inputSource = source; }
bool GLControl::FullAuto() const { return d->fullAuto; }
void GLControl::setFullAuto(bool fullAuto) { d->fullAuto = fullAuto; }
QString GLControl::RUNMODE() const { return d->runMode; }
void GLControl::setRUNMODE(const QString& mode)
{
    d->runMode = mode;
    EditStatus(mode == QLatin1String("VIEW") ? 0 : 1);
}

QString GLControl::GLDocNo() const { return d->docNo->text(); }
void GLControl::setGLDocNo(const QString& number) { d->docNo->setText(number); }
QString GLControl::GLBook() const { return d->book->text(); }
void GLControl::setGLBook(const QString& code)
{
    d->book->setText(code.trimmed());
    QString name;
    if (!code.trimmed().isEmpty() && !DataConnectionString().isEmpty()) {
        try {
            name = SessionServices::listService()
                       .LookupValue(QString(), QStringLiteral("TGLBCode"), code.trimmed(), QStringLiteral("TGLBName") + nameSuffix(),
                           QStringLiteral("QD8TGLBook"), DataConnectionString())
                       .toString();
        } catch (const DbError&) {
        }
    }
    d->bookName->setText(name);
}
int GLControl::GLMethod() const { return d->method->currentIndex(); }
void GLControl::setGLMethod(int method) { d->method->setCurrentIndex(qBound(0, method, d->method->count() - 1)); }
QString GLControl::Description() const { return d->description->text(); }
void GLControl::setDescription(const QString& text) { d->description->setText(text); }
QDate GLControl::GLDocDate() const { return d->docDate; }
void GLControl::setGLDocDate(const QDate& date) { d->docDate = date; }
bool GLControl::LockMethod() const { return d->lockMethod; }
void GLControl::setLockMethod(bool locked)
{
    d->lockMethod = locked;
    EditStatus(d->editing ? 1 : 0);
}

bool GLControl::ShowGLBook() const { return !d->bookRow->isHidden(); }
void GLControl::setShowGLBook(bool show) { d->bookRow->setVisible(show); }
bool GLControl::ShowGLDoc() const { return !d->docRow->isHidden(); }
void GLControl::setShowGLDoc(bool show) { d->docRow->setVisible(show); }
bool GLControl::ShowGLDocDescription() const { return !d->descriptionRow->isHidden(); }
void GLControl::setShowGLDocDescription(bool show) { d->descriptionRow->setVisible(show); }
bool GLControl::ShowMethod() const { return !d->methodRow->isHidden(); }
void GLControl::setShowMethod(bool show) { d->methodRow->setVisible(show); }
bool GLControl::ShowSumary() const { return !d->summary->isHidden(); }
void GLControl::setShowSumary(bool show) { d->summary->setVisible(show); }
bool GLControl::ShowTools() const { return !d->tools->isHidden(); }
void GLControl::setShowTools(bool show) { d->tools->setVisible(show); }

void GLControl::GridShow()
{
    if (d->grid->Cols() == 0)
        for (const GLColumnSpec& spec : GLColumns)
            d->grid->addColumn(GridColumn::fromDefinition(bilingual(spec.thai, spec.english), spec.width,
                spec.amount ? QStringLiteral("NUMBER") : QStringLiteral("TEXT"), spec.amount ? 2 : 0));
    d->grid->setVisible(true);
}

void GLControl::EditStatus(int iStatus)
{
    d->editing = iStatus != 0;
    d->grid->setReadOnly(!d->editing || d->linesReadOnly);
    for (QLineEdit* edit : {d->book, d->docNo, d->description})
        edit->setReadOnly(!d->editing);
    d->method->setEnabled(d->editing && !d->lockMethod);
    d->active->setEnabled(d->editing);
    d->saveZero->setEnabled(d->editing);
    d->tools->setEnabled(d->editing && !d->linesReadOnly);
}

void GLControl::FillLine(const QString& TAccCode, bool IsDebit, Currency Value)
{
    const int row = d->lineForNew();
    d->setLine(row, TAccCode, IsDebit ? Value : Currency(), IsDebit ? Currency() : Value);
    SumColGrid1();
}

void GLControl::FillDescription(int iRecord, const QString& iDescription, const QString& iCustom2)
{
    const QString text = iDescription.isEmpty() ? Description() : iDescription;
    for (int row = 1; row <= d->grid->Rows(); ++row) {
        if (iRecord != 0 && row != iRecord)
            continue;
        d->grid->model()->setText(row - 1, ColDescription - 1, text);
        if (!iCustom2.isEmpty())
            d->grid->model()->setText(row - 1, d->column("TGTSDescription2") - 1, iCustom2);
    }
}

void GLControl::FillParam(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode)
{
    FillParam2(iRecord, iARCode, iAPCode, iProjectCode, {});
}
void GLControl::FillParam2(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
    const QString& iBranchCode)
{
    FillParam3(iRecord, iARCode, iAPCode, iProjectCode, iBranchCode, {}, {}, {});
}
void GLControl::FillParam3(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
    const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode)
{
    FillParam4(iRecord, iARCode, iAPCode, iProjectCode, iBranchCode, iDivCode, iDepCode, iSecCode, {});
}
void GLControl::FillParam4(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
    const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode, const QString& iEmpCode)
{
    FillParam5(iRecord, iARCode, iAPCode, iProjectCode, iBranchCode, iDivCode, iDepCode, iSecCode, iEmpCode, {}, {}, {});
}
void GLControl::FillParam5(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
    const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode, const QString& iEmpCode,
    const QString& iSAeCode, const QString& iSZnCode, const QString& iSZGCode)
{
    FillParam6(iRecord, iARCode, iAPCode, iProjectCode, iBranchCode, iDivCode, iDepCode, iSecCode, iEmpCode, iSAeCode, iSZnCode,
        iSZGCode, {}, {}, {});
}
void GLControl::FillParam6(int iRecord, const QString& iARCode, const QString& iAPCode, const QString& iProjectCode,
    const QString& iBranchCode, const QString& iDivCode, const QString& iDepCode, const QString& iSecCode, const QString& iEmpCode,
    const QString& iSAeCode, const QString& iSZnCode, const QString& iSZGCode, const QString& iAssCode, const QString& iPdtCode,
    const QString& iJobNo)
{
    const std::pair<const char*, const QString*> codes[] = {{"TGTSTARNCode", &iARCode}, {"TGTSTAPNCode", &iAPCode},
        {"TGTSTPrjCode", &iProjectCode}, {"TGTSTBraCode", &iBranchCode}, {"TGTSTDivCode", &iDivCode}, {"TGTSTDepCode", &iDepCode},
        {"TGTSTSecCode", &iSecCode}, {"TGTSTEmpCode", &iEmpCode}, {"TGTSTSAeCode", &iSAeCode}, {"TGTSTSZnCode", &iSZnCode},
        {"TGTSTSZGCode", &iSZGCode}, {"TGTSTAssCode", &iAssCode}, {"TGTSTPdtCode", &iPdtCode}, {"TGTSTJobNo", &iJobNo}};
    for (int row = 1; row <= d->grid->Rows(); ++row) {
        if (iRecord != 0 && row != iRecord)
            continue;
        for (const auto& [field, code] : codes)
            if (!code->isEmpty())
                d->grid->model()->setText(row - 1, d->column(field) - 1, *code);
    }
}

void GLControl::AddList(const QString& ACCode, int Year, int Period)
{
    Currency balance;
    try {
        Connection data;
        data.open(DataConnectionString());
        Recordset rs;
        Sql sql = Sql("SELECT SUM(TGTSDebit) AS SumDebit, SUM(TGTSCredit) AS SumCredit FROM QD8TGLTransSub WHERE TGTSTACCCode=")
            + quoted(ACCode) + " AND TGTSTACPTACYID=" + qint64(Year);
        if (Period != 0)
            sql += Sql(" AND TGTSTACPID=") + qint64(Period);
        rs.open(sql, data);
        balance = rs.currency(QStringLiteral("SumDebit")) - rs.currency(QStringLiteral("SumCredit"));
    } catch (const DbError& error) {
        Services::messages().critical(bilingual("สมุดรายวัน", "Journal"), error.userText(LanguageID()));
        return;
    }
    if (balance == Currency())
        return;
    FillLine(ACCode, balance < Currency(), balance < Currency() ? -balance : balance);
}

void GLControl::ReverseAllSide()
{
    GridEditorModel* model = d->grid->model();
    for (int row = 1; row <= d->grid->Rows(); ++row) {
        const QString debit = d->cell(row, ColDebit);
        model->setText(row - 1, ColDebit - 1, d->cell(row, ColCredit));
        model->setText(row - 1, ColCredit - 1, debit);
    }
    SumColGrid1();
}

void GLControl::CLEARZEROGL()
{
    d->grid->ShowProgress(QStringLiteral("Clearing Zero Value"), d->grid->Rows());
    for (int row = d->grid->Rows(); row >= 1; --row) {
        if (d->amount(row, ColDebit) == Currency() && d->amount(row, ColCredit) == Currency())
            d->grid->RemoveRow(row);
        d->grid->SetProgress(d->grid->Rows() - row);
    }
    d->grid->HideProgress();
    SumColGrid1();
}

namespace {

// All cells of the live rows, as stored.
QList<QStringList> liveLines(const GridEditor* grid)
{
    QList<QStringList> lines;
    const GridEditorModel* model = grid->model();
    for (int row = 0; row < model->rowCount(); ++row) {
        if (model->rowEdit(row).deleted)
            continue;
        QStringList cells;
        for (int col = 0; col < model->columnCount(); ++col)
            cells.append(model->storedText(row, col));
        lines.append(cells);
    }
    return lines;
}

void replaceLines(GridEditor* grid, const QList<QStringList>& lines)
{
    grid->ClearRows();
    GridEditorModel* model = grid->model();
    for (const QStringList& cells : lines) {
        const int row = model->rowCount();
        model->insertRows(row, 1);
        for (int col = 0; col < cells.size(); ++col)
            model->setText(row, col, cells[col]);
    }
}

bool isDebitLine(const QStringList& cells)
{
    return parseAmount(cells[GLControl::ColDebit - 1]) != Currency();
}

} // namespace

void GLControl::SORTGL()
{
    QList<QStringList> lines = liveLines(d->grid);
    std::stable_sort(lines.begin(), lines.end(), [](const QStringList& a, const QStringList& b) {
        const bool debitA = isDebitLine(a), debitB = isDebitLine(b);
        if (debitA != debitB)
            return debitA;
        return a[ColAccount - 1] < b[ColAccount - 1];
    });
    replaceLines(d->grid, lines);
    SumColGrid1();
}

void GLControl::GROUPGL()
{
    QList<QStringList> grouped;
    QHash<QString, int> index;
    for (const QStringList& cells : liveLines(d->grid)) {
        QStringList key = cells;
        key[ColDebit - 1] = key[ColCredit - 1] = QString();
        key.append(isDebitLine(cells) ? QStringLiteral("D") : QStringLiteral("C"));
        const QString joined = key.join(QChar(0x1F));
        const auto found = index.constFind(joined);
        if (found == index.constEnd()) {
            index.insert(joined, int(grouped.size()));
            grouped.append(cells);
            continue;
        }
        QStringList& target = grouped[*found];
        for (int col : {ColDebit, ColCredit})
            target[col - 1] = (parseAmount(target[col - 1]) + parseAmount(cells[col - 1])).toString();
    }
    replaceLines(d->grid, grouped);
    SumColGrid1();
}

void GLControl::SumColGrid1()
{
    if (d->holdTotals)
        return;
    // A row marked deleted counts as zero; marking a row changes its cells, so it is
    // read again like any changed row.
    const auto refresh = [this](int r) {
        const bool live = d->isLive(r + 1);
        d->debits[r] = live ? d->amount(r + 1, ColDebit) : Currency();
        d->credits[r] = live ? d->amount(r + 1, ColCredit) : Currency();
    };
    const int rows = d->grid->Rows();
    if (!d->cacheValid || d->debits.size() != rows) {
        d->debits.resize(rows);
        d->credits.resize(rows);
        for (int r = 0; r < rows; ++r)
            refresh(r);
        d->cacheValid = true;
    } else {
        for (int r : std::as_const(d->dirtyRows))
            refresh(r);
    }
    d->dirtyRows.clear();
    Currency debit, credit;
    for (const Currency& amount : std::as_const(d->debits))
        debit += amount;
    for (const Currency& amount : std::as_const(d->credits))
        credit += amount;
    d->sumDebit = debit;
    d->sumCredit = credit;
    // The totals line is redrawn once the keystroke is handled, not at every change.
    if (!d->totalsShowPending) {
        d->totalsShowPending = true;
        QMetaObject::invokeMethod(this, [this] { d->showTotals(); }, Qt::QueuedConnection);
    }
    Q_EMIT ValueChange(debit, credit);
}

void GLControl::Private::showTotals()
{
    totalsShowPending = false;
    const GridColumn& money = grid->column(ColDebit);
    sumDebitLabel->setText(q->bilingual("เดบิต %1", "Debit %1").arg(money.displayText(sumDebit.toString(), DateEra::Gregorian)));
    sumCreditLabel->setText(q->bilingual("เครดิต %1", "Credit %1").arg(money.displayText(sumCredit.toString(), DateEra::Gregorian)));
}

void GLControl::SetSaveZero(int iValue) { d->saveZero->setChecked(iValue != 0); }

void GLControl::SpeedProcess2(bool Status, const QString& NewCaption)
{
    d->holdTotals = Status;
    if (Status) {
        d->grid->ShowProgress(NewCaption);
        return;
    }
    d->grid->HideProgress();
    SumColGrid1();
}

void GLControl::ClearOldRecord()
{
    d->grid->ClearRows();
    d->docNo->clear();
    d->oldNumber.clear();
    d->stampKnown = false;
    d->balances.clear();
    SumColGrid1();
}

QList<GLLine> GLControl::GETGLList() const
{
    QList<GLLine> lines;
    for (int row = 1; row <= d->grid->Rows(); ++row)
        if (d->isLive(row) && !d->cell(row, ColAccount).isEmpty())
            lines.append({d->cell(row, ColAccount), d->cell(row, ColName), d->cell(row, ColDescription), d->amount(row, ColDebit),
                d->amount(row, ColCredit)});
    return lines;
}

QString GLControl::isReadyToSave()
{
    if (GLMethod() >= 1 && GLBook().isEmpty()) {
        if (d->book->isEnabled())
            d->book->setFocus();
        return QStringLiteral("เลือกสมุดรายวัน หรือ กำหนด ค่าเริ่มต้นสมุดรายวันให้เรียบร้อย");
    }
    if (GLMethod() > 0) {
        Currency debit, credit;
        for (const GLLine& line : GETGLList()) {
            debit += line.debit;
            credit += line.credit;
        }
        if (debit != credit) {
            if (d->grid->isVisible())
                d->grid->setFocus();
            return QStringLiteral("ยอดบัญชีเดบิต และเครดิตไม่เท่ากัน หรือ รหัสบัญชีไม่ถูกต้อง กรุณาตรวจสอบรายการ");
        }
    }
    if (isGLZeroDiff())
        return QStringLiteral("ยอดรวม เป็น 0 โปรดตรวสอบรูปแบบการบันทึกบัญชี");
    if (GLMethod() == 0)
        return {};
    const QString closed = d->closedPeriodProblem(d->docDate);
    return closed.isEmpty() ? d->quotedTextProblem({Description()}) : closed;
}

bool GLControl::isGLZero() { return isGLZero2(true); }

bool GLControl::isGLZero2(bool ForceActionControl)
{
    SumColGrid1();
    if (d->sumDebit != Currency() || d->sumCredit != Currency())
        return false;
    const int option = qRound(d->option(QStringLiteral("GLZeroOption"), OptionScope::User));
    if (option == 1) {
        if (ForceActionControl)
            setGLMethod(0);
        return false;
    }
    if (option == 2) {
        if (ForceActionControl)
            SetSaveZero(1);
        return false;
    }
    return true;
}

bool GLControl::isGLZeroDiff() { return GLMethod() > 0 && isGLZero(); }

Currency GLControl::GETSumDebit() const
{
    const_cast<GLControl*>(this)->SumColGrid1();
    return d->sumDebit;
}

Currency GLControl::GETSumCredit() const
{
    const_cast<GLControl*>(this)->SumColGrid1();
    return d->sumCredit;
}

int GLControl::Private::firstMention(const QStringList& words) const
{
    for (int row = 1; row <= grid->Rows(); ++row) {
        if (!isLive(row))
            continue;
        QString text = cell(row, ColName) + QStringLiteral("===") + cell(row, ColDescription);
        text.remove(QLatin1Char('-'));
        for (int i = 0; i < words.size(); ++i)
            if (text.contains(words[i]))
                return i;
    }
    return -1;
}

GLInputVATType GLControl::GetInputVATType() const
{
    switch (d->firstMention({QStringLiteral("ภาษีขาย"), QStringLiteral("ภาษีซื้อ")})) {
    case 0: return GLInputVATTypeSale;
    case 1: return GLInputVATTypePurchase;
    default: return GLInputVATTypeNone;
    }
}

GLInputWHTType GLControl::GetInputWHTType() const
{
    switch (d->firstMention({QStringLiteral("ภาษีถูกหัก"), QStringLiteral("ภาษีหัก")})) {
    case 0: return GLInputWHTTypeSale;
    case 1: return GLInputWHTTypePurchase;
    default: return GLInputWHTTypeNone;
    }
}

Currency GLControl::currentAccountBalance() const
{
    const int row = d->grid->Row();
    const QString account = row > 0 ? d->cell(row, ColAccount) : QString();
    if (account.isEmpty())
        return {};
    const auto cached = d->balances.constFind(account);
    if (cached != d->balances.constEnd())
        return *cached;
    Currency balance;
    try {
        Connection data;
        data.open(DataConnectionString());
        Recordset rs;
        rs.open(Sql("SELECT SUM(TGTSDebit) AS SumDebit, SUM(TGTSCredit) AS SumCredit FROM QD8TGLTransSub WHERE TGTSTACCCode=") + quoted(account),
            data);
        balance = rs.currency(QStringLiteral("SumDebit")) - rs.currency(QStringLiteral("SumCredit"));
    } catch (const DbError&) {
        return {};  // shown as nothing rather than as a wrong figure
    }
    d->balances.insert(account, balance);
    return balance;
}

void GLControl::setSaveConnection(Connection* connection) { d->saveConnection = connection; }

} // namespace qd8
