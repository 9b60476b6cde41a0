#include "accounting/PointControl.h"

#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/NumberText.h"
#include "foundation/Recordset.h"
#include "foundation/SqlRefusal.h"
#include "foundation/Services.h"
#include "foundation/Values.h"
#include "widgets/ButtonWords_p.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <cmath>

namespace qd8 {

namespace {

constexpr int SelectIndex = 7;  // ValidData's index after a pick

} // namespace

class PointControl::Private {
public:
    explicit Private(PointControl* q) : q(q) {}

    QLineEdit* field(QGridLayout* grid, int row, int column, const char* name);
    QPushButton* button(const char* name);
    void showValues();
    void retranslate();
    // Looks the number up on an open connection: false when there is no such document.
    bool lookUp(Connection& c, const QString& number);
    void tell(const QString& text) const { Services::messages().information(q->bilingual("Point", "Points"), text); }

    PointControl* q;
    QGroupBox* box = nullptr;
    QLabel* captions[6] = {};
    QLineEdit* available = nullptr;
    QLineEdit* number = nullptr;
    QLineEdit* use = nullptr;
    QLineEdit* useValue = nullptr;
    QLineEdit* pax = nullptr;
    QLineEdit* maxUseValue = nullptr;
    QPushButton* select = nullptr;
    QPushButton* addNew = nullptr;
    QPushButton* open = nullptr;
    QPushButton* apply = nullptr;
    QPushButton* transfer = nullptr;

    QString connectionString;
    double pointAvailable = 0;
    double pointUse = 0;
    double pointUseValue = 0;
    double pointUsePax = 0;
    double pointMaxUseValue = 0;
    QString mode;
    // The hosting document.
    QString mvarDocumentGroup;
    int mvarDocumentType = 0;
    QString mvarDocumentNo;
    QString mvarCustomerCode;
};

QLineEdit* PointControl::Private::field(QGridLayout* grid, int row, int column, const char* name)
{
    auto* edit = new QLineEdit(q);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::NoFocus);
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(edit, row, column);
    return edit;
}

QPushButton* PointControl::Private::button(const char* name)
{
    auto* b = new QPushButton(q);
    b->setObjectName(QString::fromLatin1(name));
    b->setAutoDefault(false);
    return b;
}

void PointControl::Private::showValues()
{
    available->setText(groupedNumber(pointAvailable, 0));
    use->setText(groupedNumber(pointUse, 0));
    useValue->setText(groupedNumber(pointUseValue, 2));
    pax->setText(groupedNumber(pointUsePax, 0));
    maxUseValue->setText(groupedNumber(pointMaxUseValue, 2));
}

void PointControl::Private::retranslate()
{
    box->setTitle(QStringLiteral("Use Point Control"));
    const char* texts[6] = {"Point Balance", "Refer No", "Use Point", "Amount", "Pax", "Avail"};
    QLineEdit* fields[6] = {available, number, use, useValue, pax, maxUseValue};
    for (int i = 0; i < 6; ++i) {
        captions[i]->setText(QString::fromLatin1(texts[i]));
        fields[i]->setAccessibleName(captions[i]->text());
    }
    select->setText(QStringLiteral("..."));
    setButtonWords(select, q->bilingual("เลือกใบใช้ Point (F2)", "Pick a point document (F2)"));
    addNew->setText(q->bilingual("สร้างใหม่", "New"));
    open->setText(q->bilingual("เปิด", "Open"));
    apply->setText(q->bilingual("ใช้ Point", "Apply"));
    transfer->setText(q->bilingual("โอน", "Transfer"));
}

bool PointControl::Private::lookUp(Connection& c, const QString& pointNo)
{
    const Sql key = quoted(pointNo);
    Recordset header;
    header.open("SELECT * FROM QD8TPointTrans WHERE TPitNo=" + key, c);
    if (header.eof())
        return false;
    Recordset sum;
    sum.open("SELECT * FROM QD8VPointTransSum WHERE TPOTTPitNo=" + key, c);
    pointUse = sum.eof() ? 0 : std::abs(toNumber(sum.field(QStringLiteral("TPoTQuantity"))));
    Recordset lines;
    lines.open("SELECT * FROM QD8VPointTrans WHERE TPitNo=" + key, c);
    pointUsePax = lines.eof() ? 0 : toNumber(lines.field(QStringLiteral("TPoTPax")));
    return true;
}

PointControl::PointControl(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>(this))
{
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    d->box = new QGroupBox(this);
    outer->addWidget(d->box);
    auto* grid = new QGridLayout(d->box);
    for (auto*& caption : d->captions)
        caption = new QLabel(this);
    grid->addWidget(d->captions[0], 0, 0);
    d->available = d->field(grid, 0, 1, "pointAvailable");
    grid->addWidget(d->captions[1], 1, 0);
    d->number = new QLineEdit(this);
    d->number->setObjectName(QStringLiteral("pointNo"));
    d->number->installEventFilter(this);
    grid->addWidget(d->number, 1, 1);
    d->select = d->button("pointSelect");
    grid->addWidget(d->select, 1, 2);
    grid->addWidget(d->captions[2], 2, 0);
    d->use = d->field(grid, 2, 1, "pointUse");
    grid->addWidget(d->captions[3], 2, 2);
    d->useValue = d->field(grid, 2, 3, "pointUseValue");
    grid->addWidget(d->captions[4], 3, 0);
    d->pax = d->field(grid, 3, 1, "pointUsePax");
    grid->addWidget(d->captions[5], 3, 2);
    d->maxUseValue = d->field(grid, 3, 3, "pointMaxUseValue");
    auto* buttons = new QHBoxLayout;
    d->addNew = d->button("pointNew");
    d->open = d->button("pointOpen");
    d->apply = d->button("pointApply");
    d->transfer = d->button("pointTransfer");
    for (QPushButton* b : {d->addNew, d->open, d->apply, d->transfer})
        buttons->addWidget(b);
    grid->addLayout(buttons, 4, 0, 1, 4);

    connect(d->select, &QPushButton::clicked, this, &PointControl::selectPointDocument);
    connect(d->addNew, &QPushButton::clicked, this, [this] { Q_EMIT AddNew(d->mvarCustomerCode); });
    connect(d->open, &QPushButton::clicked, this,
        [this] { Q_EMIT OpenDocument(d->mvarDocumentGroup, d->mvarDocumentType, d->mvarDocumentNo, d->mvarCustomerCode); });
    connect(d->apply, &QPushButton::clicked, this,
        [this] { Q_EMIT Apply(d->mvarDocumentGroup, d->mvarDocumentType, d->mvarDocumentNo, d->mvarCustomerCode); });
    connect(d->transfer, &QPushButton::clicked, this, [this] {
        Q_EMIT OpenDocumentTransfer(d->mvarDocumentGroup, TransferDocumentType, d->mvarDocumentNo, d->mvarCustomerCode);
    });
    d->retranslate();
    d->showValues();
}

PointControl::~PointControl() = default;

void PointControl::SetFirst(const QString& iConnectionString, qint32 UserID, const QString& DocumentGroup, int DocumentType)
{
    d->connectionString = iConnectionString;
    setConnectionString(iConnectionString);
    setUserID(UserID);
    d->mvarDocumentGroup = DocumentGroup;
    d->mvarDocumentType = DocumentType;
}

double PointControl::PointAvailable() const { return d->pointAvailable; }
void PointControl::setPointAvailable(double points) { d->pointAvailable = points; d->showValues(); }
QString PointControl::PointNo() const { return d->number->text(); }
void PointControl::setPointNo(const QString& number) { d->number->setText(number); }
double PointControl::PointUse() const { return d->pointUse; }
void PointControl::setPointUse(double points) { d->pointUse = points; d->showValues(); }
double PointControl::PointUseValue() const { return d->pointUseValue; }
void PointControl::setPointUseValue(double value) { d->pointUseValue = value; d->showValues(); }
double PointControl::PointUsePax() const { return d->pointUsePax; }
void PointControl::setPointUsePax(double pax) { d->pointUsePax = pax; d->showValues(); }
double PointControl::PointMaxUseValue() const { return d->pointMaxUseValue; }
void PointControl::setPointMaxUseValue(double value) { d->pointMaxUseValue = value; d->showValues(); }
QString PointControl::CustomerCode() const { return d->mvarCustomerCode; }
void PointControl::setCustomerCode(const QString& code) { d->mvarCustomerCode = code; }
QString PointControl::MODE() const { return d->mode; }
void PointControl::setMODE(const QString& mode)
{
    // The point document is chosen while the host document is added or edited.
    d->mode = mode;
    const bool writable = mode == QLatin1String("ADD") || mode == QLatin1String("EDIT");
    d->number->setReadOnly(!writable);
    d->select->setEnabled(writable);
    d->apply->setEnabled(writable);
}
QString PointControl::documentGroup() const { return d->mvarDocumentGroup; }
int PointControl::documentType() const { return d->mvarDocumentType; }
QString PointControl::documentNo() const { return d->mvarDocumentNo; }

void PointControl::FillData(const QString& DocNo)
{
    d->mvarDocumentNo = DocNo;
    Connection c;
    c.open(d->connectionString);
    if (d->mvarDocumentGroup == QLatin1String("RO")) {
        Recordset rs;
        rs.open("SELECT * FROM QD8TSO WHERE TSOType=2 AND TSODNo=" + quoted(DocNo), c);
        if (!rs.eof())
            setPointNo(rs.text(QStringLiteral("TInvTJobNo")));
    }
    const QString pointNo = PointNo().trimmed();
    if (pointNo.isEmpty() || !d->lookUp(c, pointNo))
        d->pointUse = d->pointUsePax = 0;
    d->showValues();
}

QString PointControl::isReadyToSave() const { return {}; }

void PointControl::ValidData(int Index)
{
    Q_UNUSED(Index);
    Q_EMIT DataChange();
}

void PointControl::selectPointDocument()
{
    if (d->mvarCustomerCode.trimmed().isEmpty()) {
        d->tell(QStringLiteral("กรุณาระบุลูกค้า ก่อน เลือกรายการ"));
        return;
    }
    const Sql source = Sql("QD8VPointTransH WHERE (TPiTRefNo='' or TPiTRefNo is null) AND TPiTCancelStatus=0 AND TPiTApproveStatus=1 AND TPiTType=")
        + d->mvarDocumentType + " AND TPiTTARNCode=" + quoted(d->mvarCustomerCode) + " ORDER BY TPiTNo";
    if (source.isBroken()) {
        d->tell(refusal(source).userText(LanguageID()));
        return;
    }
    PickRequest request;
    request.title = QStringLiteral("เลือกรายละเอียดใบใช้ Point");
    request.keyField = QStringLiteral("TPiTNo");
    request.fieldList = QStringLiteral("TPiTNo,TPiTDate,TPiTTARNCode,TARNName,TPiTTotalQuantity,TPITDescription");
    request.typeList = QStringLiteral("0,6,0,0,2,0");
    request.widthList = QStringLiteral("1600,1000,1000,3000,1000,4000");
    request.captionList = QStringLiteral("เลขที่เอกสาร,วันที่,รหัสลูกค้า,ชื่อลูกค้า,จำนวน Point,หมายเหตุ");
    request.source = source.text();
    request.connectionString = d->connectionString;
    const QString chosen = Services::picker().pick(request);
    if (chosen.isEmpty())
        return;
    setPointNo(chosen);
    validatePointNo();
    ValidData(SelectIndex);
}

bool PointControl::validatePointNo()
{
    const QString pointNo = PointNo().trimmed();
    QString problem;
    try {
        Connection c;
        c.open(d->connectionString);
        if (!d->lookUp(c, pointNo))
            problem = bilingual("ไม่พบใบใช้ Point เลขที่ %1", "There is no point document %1").arg(pointNo);
    } catch (const DbError& error) {
        problem = error.userText(LanguageID());
    }
    if (!problem.isEmpty()) {
        d->pointUse = d->pointUsePax = 0;
        d->tell(problem);
    }
    d->showValues();
    return problem.isEmpty();
}

bool PointControl::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->number && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            if (validatePointNo())
                ValidData();
            return true;
        }
        if (key->key() == Qt::Key_F2) {
            selectPointDocument();
            return true;
        }
    }
    return HostedControl::eventFilter(watched, event);
}

void PointControl::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    HostedControl::changeEvent(event);
}

} // namespace qd8
