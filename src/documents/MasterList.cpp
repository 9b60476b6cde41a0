#include "documents/MasterList.h"

#include "foundation/CommaList.h"
#include "foundation/Services.h"
#include "widgets/SendKeys.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace qd8 {

MasterList::MasterList(QWidget* parent) : ListControl("รายการข้อมูลหลัก", "Master list", parent)
{
}

MasterList::~MasterList() = default;

void MasterList::SetFilter(const QString& iCommandAlias, const QString& iCommandGroup, std::shared_ptr<DataObject> iDataObj,
    std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj, FormCollection* iForms,
    const QString& iLCaption, const QString& iFCaption, bool iDoFilterEmployee)
{
    Q_UNUSED(iDoFilterEmployee);  // master rows carry no employee type
    const bool found = loadDefinition(iCommandAlias, iCommandGroup, std::move(iDataObj), std::move(iAppObj),
        std::move(iClientObj), iForms, iLCaption, iFCaption);
    buildPanel();
    if (found)
        runQuery();
}

QString MasterList::loadingCaption() const
{
    return QStringLiteral("เลือกรายการ");
}

Sql MasterList::searchCondition(const QString& text, const QString& columnList, const QString& typeList)
{
    const QString needle = text.trimmed();
    if (needle.isEmpty())
        return {};
    const QStringList columns = splitList(columnList);
    const QStringList types = splitList(typeList);
    Sql terms;
    for (int c = 0; c < columns.size(); ++c) {
        if (types.value(c).trimmed() != QLatin1String("0"))
            continue;
        terms += Sql(terms.text().isEmpty() ? " AND (" : " OR ") + columns[c].trimmed() + " LIKE "
            + quoted(QLatin1Char('%') + needle + QLatin1Char('%'));
    }
    return terms.text().isEmpty() ? terms : terms + ")";
}

Sql MasterList::composeWhere()
{
    const QString p = Prefix();
    Sql where = Sql(" WHERE ") + PKey() + "<>''";
    const int inUse = m_inUse ? m_inUse->currentIndex() : 1;
    if (inUse == 0)
        where += Sql(" AND ") + p + "Flag1=1";
    else if (inUse == 2)
        where += Sql(" AND (") + p + "Flag1=0 OR " + p + "Flag1 is null)";
    if (m_applyFilter1 && m_applyFilter1->isChecked() && !m_filter1->text().trimmed().isEmpty()) {
        const QString field = m_def.Filter1W.isEmpty() ? p + filter1KeyField() : m_def.Filter1W;
        where += Sql(" AND ") + field + "=" + quoted(m_filter1->text().trimmed());
    }
    if (m_search)
        where += searchCondition(m_search->text(), m_def.ColumnList, m_def.TypeList);
    where += m_def.FilterCustomW;
    return where;
}

QStringList MasterList::keyMembers(bool adding) const
{
    if (adding)
        return {QStringLiteral("NewMasterCode")};
    return {QStringLiteral("NewMasterCode"), QStringLiteral("MasterCode")};
}

void MasterList::buildPanel()
{
    delete m_panel;
    m_panel = new QWidget(this);
    m_panel->setObjectName(QStringLiteral("filterPanel"));
    auto* row = new QHBoxLayout(m_panel);
    row->setContentsMargins(0, 0, 0, 0);
    panelLayout()->addWidget(m_panel);

    m_inUse = new QComboBox(m_panel);
    m_inUse->setObjectName(QStringLiteral("ComboListDesigner1"));
    m_inUse->setAccessibleName(bilingual("สถานะการใช้งาน", "In use"));
    m_inUse->addItems({bilingual("ใช้งาน", "In use"), bilingual("ทั้งหมด", "All"), bilingual("ไม่ใช้งาน", "Not in use")});
    m_inUse->setCurrentIndex(m_def.DefaultFilter >= 0 && m_def.DefaultFilter <= 2 ? m_def.DefaultFilter : 0);
    connect(m_inUse, &QComboBox::currentIndexChanged, this, &MasterList::select);  // the list never contradicts it
    row->addWidget(m_inUse);

    m_applyFilter1 = nullptr;
    m_filter1 = nullptr;
    if (!m_def.Filter1.isEmpty()) {
        m_applyFilter1 = new QCheckBox(filter1Caption(), m_panel);
        m_applyFilter1->setObjectName(QStringLiteral("chkFilter"));
        m_applyFilter1->setAccessibleName(m_applyFilter1->text());
        m_filter1 = new QLineEdit(m_panel);
        m_filter1->setObjectName(QStringLiteral("txtFilter1"));
        m_filter1->setAccessibleName(filter1Caption());
        m_filter1->setToolTip(bilingual("F2 เลือกจากรายการ", "F2 picks from a list"));
        m_filter1->installEventFilter(this);
        connect(m_filter1, &QLineEdit::returnPressed, this, &MasterList::select);
        row->addWidget(m_applyFilter1);
        row->addWidget(m_filter1);
    }

    auto* label = new QLabel(bilingual("ค้นหา", "Search"), m_panel);
    m_search = new QLineEdit(m_panel);
    m_search->setObjectName(QStringLiteral("txtSearch"));
    m_search->setAccessibleName(label->text());
    label->setBuddy(m_search);
    connect(m_search, &QLineEdit::returnPressed, this, &MasterList::select);
    row->addWidget(label);
    row->addWidget(m_search, 1);

    auto* selectButton = new QPushButton(bilingual("เลือก", "Select"), m_panel);
    selectButton->setObjectName(QStringLiteral("cmdSelect"));
    selectButton->setAccessibleName(selectButton->text());
    connect(selectButton, &QPushButton::clicked, this, &MasterList::select);
    row->addWidget(selectButton);
}

void MasterList::select()
{
    if (m_search->text().contains(QLatin1Char('\''))) {
        Services::messages().information(LCaption(),
            bilingual("คำค้นหาต้องไม่มีเครื่องหมาย '", "The search text may not hold a quote (')."));
        return;
    }
    runQuery();
}

bool MasterList::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_filter1 && event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F2) {
        const QString code = pickFromQuickForm(m_def.Filter1);
        if (!code.isEmpty()) {
            m_filter1->setText(code);
            m_applyFilter1->setChecked(true);
            SendKeys(QStringLiteral("{TAB}"));
        }
        return true;
    }
    return ListControl::eventFilter(watched, event);
}

} // namespace qd8
