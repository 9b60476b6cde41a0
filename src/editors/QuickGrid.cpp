#include "editors/QuickGrid.h"

#include "database/ListService.h"
#include "database/PermissionObject.h"
#include "database/QuickFormMetadata.h"
#include "database/QuickFormPick.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/Values.h"
#include "widgets/ButtonWords_p.h"
#include "widgets/EditorShortcuts_p.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QAction>
#include <QEvent>
#include <QApplication>
#include <QKeyEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace qd8 {

const QStringList QuickGrid::ButtonKeys = {QStringLiteral("Enter"), QStringLiteral("Help"), QStringLiteral("Add"),
    QStringLiteral("Delete"), QStringLiteral("Filter"), QStringLiteral("Copy"), QStringLiteral("Edit"), QStringLiteral("Update"),
    QStringLiteral("Cancel"), QStringLiteral("Close"), QStringLiteral("UnPass"), QStringLiteral("Pass"), QStringLiteral("Check"),
    QStringLiteral("Print")};

namespace {

// Titles of the product-line forms come from the names the company gave its sections and
// groups; the quick form's own caption is used when there is no product line to ask.
const QHash<QString, QString>& productLineTitles()
{
    static const QHash<QString, QString> columns = {
        {QStringLiteral("PRODUCTSECTION"), QStringLiteral("TPDLSectionName1")},
        {QStringLiteral("PRODUCTSECTION2"), QStringLiteral("TPDLSectionName2")},
        {QStringLiteral("PRODUCTSECTION3"), QStringLiteral("TPDLSectionName3")},
        {QStringLiteral("PRODUCTSECTION4"), QStringLiteral("TPDLSectionName4")},
        {QStringLiteral("PRODUCTGROUP1"), QStringLiteral("TPDLGroupName1")},
        {QStringLiteral("PRODUCTGROUP2"), QStringLiteral("TPDLGroupName2")},
        {QStringLiteral("PRODUCTGROUP3"), QStringLiteral("TPDLGroupName3")},
        {QStringLiteral("PRODUCTGROUP4"), QStringLiteral("TPDLGroupName4")},
    };
    return columns;
}

} // namespace

QuickGrid::QuickGrid(QWidget* parent)
    : HostedControl(parent)
    , m_selectLabel(new QLabel(this))
    , m_selector(new QLineEdit(this))
    , m_selectButton(new QToolButton(this))
    , m_title(new QLabel(this))
    , m_toolBar(new QToolBar(this))
    , m_filter(new QLineEdit(this))
    , m_grid(new GridEditor(this))
{
    m_selector->setReadOnly(true);
    m_selector->setMaximumWidth(160);
    m_selectButton->setText(QStringLiteral("..."));
    // F2 in the selector or on its button opens the choice, as the tool tip says.
    auto* choose = new QAction(this);
    choose->setShortcut(QKeySequence(Qt::Key_F2));
    choose->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    m_selector->addAction(choose);
    m_selectButton->addAction(choose);
    connect(choose, &QAction::triggered, this, &QuickGrid::chooseForm);
    m_title->setStyleSheet(QStringLiteral("font-weight: bold"));
    auto* selectorRow = new QHBoxLayout;
    selectorRow->addWidget(m_selectLabel);
    selectorRow->addWidget(m_selector);
    selectorRow->addWidget(m_selectButton);
    selectorRow->addWidget(m_title, 1);
    for (const QString& key : ButtonKeys) {
        QAction* action = m_toolBar->addAction(key, this, [this, key] { buttonClick(key); });
        action->setObjectName(key);
        bindEditorShortcut(action, key, this);
        if (PermissionObject::ToolBarKeys.contains(key))
            registerToolButton(key, action);
    }
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    m_filter->setClearButtonEnabled(true);
    m_filter->setVisible(false);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(selectorRow);
    layout->addWidget(m_toolBar);
    layout->addWidget(m_filter);
    layout->addWidget(m_grid, 1);

    connect(m_selectButton, &QToolButton::clicked, this, &QuickGrid::chooseForm);
    connect(m_filter, &QLineEdit::textChanged, this, &QuickGrid::applyFilter);
    connect(m_grid, &GridEditor::KeyDown, this, [this](int& keyCode, int) {
        if (keyCode == 113 && (m_runMode == QLatin1String("ADD") || m_runMode == QLatin1String("EDIT"))) {
            pickIntoCell();
            keyCode = 0;
        }
    });
    connect(m_grid, &GridEditor::AfterAddRow, this, &QuickGrid::fillNewRow);
    m_grid->setValidator([this](int row, int col, const QVariant& value) { return checkCell(row, col, value); });
    m_grid->setReadOnly(true);
    setbuttons();
    retranslate();
}

QuickGrid::~QuickGrid() = default;

QString QuickGrid::SelectCaption() const
{
    return m_selectLabel->text();
}

void QuickGrid::setSelectCaption(const QString& caption)
{
    m_selectCaption = caption;
    retranslate();
}

void QuickGrid::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    HostedControl::changeEvent(event);
}

void QuickGrid::retranslate()
{
    for (const QString& key : ButtonKeys)
        button(key)->setText(editorButtonText(key, LanguageID()));
    m_selectLabel->setText(m_selectCaption.isEmpty() ? bilingual("กลุ่มข้อมูล", "Group Code") : m_selectCaption);
    setButtonWords(m_selectButton, bilingual("เลือกกลุ่มข้อมูล (F2)", "Select Group Code (F2)"));
    m_filter->setPlaceholderText(bilingual("แสดงเฉพาะรายการที่มีคำนี้", "Show only rows holding"));
    m_selector->setAccessibleName(m_selectLabel->text());
    m_filter->setAccessibleName(m_filter->placeholderText());
}

QAction* QuickGrid::button(const QString& key) const
{
    return m_toolBar->findChild<QAction*>(key);
}

QString QuickGrid::selectedAlias() const
{
    return m_selector->text();
}

QStringList QuickGrid::propertyKeysRead() const
{
    return {QStringLiteral("ConnectionString"), QStringLiteral("DataConnectionString"), QStringLiteral("QuickGroup")};
}

QuickGrid::Catalogue QuickGrid::catalogue() const
{
    Catalogue c;
    c.listing = m_quickGroup.isEmpty() ? Sql("SELECT * FROM QD8VQuickGroup ORDER BY TQfMSort")
                                       : Sql("SELECT * FROM QD8VQuickGroup WHERE TCmGAlias=") + quoted(m_quickGroup) + " ORDER BY TQfMSort";
    c.keyField = QStringLiteral("TQFmAlias");
    c.captionField = QStringLiteral("TQFmCaption") + nameSuffix();
    const bool oneGroup = !m_quickGroup.isEmpty() && m_quickGroup != QLatin1String("SM");
    const QString source = oneGroup
        ? QStringLiteral("QD8VQuickGroup WHERE TQFmFlag1=1 AND TCmGFlag1=1 AND TCmGAlias='") + m_quickGroup + QStringLiteral("' ORDER BY TQFmCaption")
        : QStringLiteral("QD8VQuickGroupBK WHERE TQFmFlag1=1 AND TCmGFlag1=1 ORDER BY TQFmCaption");
    c.pick = {QStringLiteral("Select Group Code"), QStringLiteral("TQFmAlias"), QStringLiteral("TQFmAlias,TQFmCaption") + nameSuffix(),
        QStringLiteral("ALIAS,Group Code"), QStringLiteral("0,3800"), QStringLiteral("0,0"), source, ConnectionString()};
    return c;
}

QuickFormDefinition QuickGrid::readDefinition(Connection& app, const QString& alias) const
{
    return QuickFormDefinition::load(app, alias, LanguageID());
}

void QuickGrid::Refresh()
{
    m_groupForms.clear();
    if (ConnectionString().isEmpty())
        return;
    const Catalogue c = catalogue();
    try {
        Connection app;
        app.open(ConnectionString());
        Recordset rs;
        rs.open(c.listing, app);
        for (; !rs.eof(); rs.moveNext())
            m_groupForms.append({rs.text(c.keyField), rs.text(c.captionField)});
    } catch (const DbError& error) {
        Services::messages().critical(bilingual("ฟอร์มข้อมูล", "Quick Form"), error.report(LanguageID()));
    }
}

void QuickGrid::chooseForm()
{
    // Another form while editing would drop the edits.
    if (m_locked || m_runMode == QLatin1String("ADD") || m_runMode == QLatin1String("EDIT"))
        return;
    const PickRequest pick = catalogue().pick;
    QString alias;
    try {
        alias = SessionServices::listService().PickFromList(pick);
    } catch (const DbError& error) {
        Services::messages().critical(pick.title, error.report(LanguageID()));
        return;
    }
    if (!alias.isEmpty())
        cmdWhereShow2(alias, false);
}

void QuickGrid::cmdWhereShow(const QString& KeyType)
{
    cmdWhereShow2(KeyType, false);
}

QString QuickGrid::formTitle(Connection& data, const QString& alias) const
{
    const auto column = productLineTitles().constFind(alias.toUpper());
    if (column != productLineTitles().constEnd() && !m_form.fieldFilter.isEmpty()) {
        Recordset rs;
        rs.open(Sql("SELECT ") + *column + " FROM QD8TProductLine WHERE TPDLCode=" + quoted(m_form.fieldFilter), data);
        if (!rs.eof() && !rs.text(*column).isEmpty())
            return rs.text(*column);
    }
    // The form's caption in the session language, as its metadata was read.
    return m_form.caption;
}

void QuickGrid::cmdWhereShow2(const QString& KeyType, bool LockAfterShow)
{
    m_selector->setText(KeyType);
    FillData();
    m_locked = LockAfterShow;
    m_selectButton->setEnabled(!m_locked);
    Q_EMIT ChangeGroup();
}

QString QuickGrid::loadStatement() const
{
    QString sql = QStringLiteral("SELECT * FROM ") + m_form.view;
    if (!m_form.where.isEmpty())
        sql += QStringLiteral(" WHERE ") + m_form.where;
    if (!m_form.order.isEmpty())
        sql += QStringLiteral(" ORDER BY ") + m_form.order;
    return sql;
}

void QuickGrid::FillData()
{
    QString alias = m_selector->text().trimmed();
    if (alias.isEmpty()) {
        // The form to open first; without one nothing is opened.
        alias = m_defaultFormAlias.trimmed();
        m_selector->setText(alias);
    }
    // Reading the same form again (after a save that re-sorts) keeps the cursor on its record.
    const QStringList kept = alias == m_form.alias ? currentKey() : QStringList();
    m_grid->Clear();
    m_loaded.clear();
    m_form = {};
    m_title->clear();
    m_filter->clear();
    if (alias.isEmpty() || ConnectionString().isEmpty() || DataConnectionString().isEmpty()) {
        enterMode(QStringLiteral("BLANK"));
        return;
    }
    try {
        Connection app;
        app.open(ConnectionString());
        Connection data;
        data.open(DataConnectionString());
        m_form = readDefinition(app, alias);
        if (!m_form.isLoaded()) {
            enterMode(QStringLiteral("BLANK"));
            return;
        }
        m_title->setText(formTitle(data, alias));
        m_grid->setLanguageID(LanguageID());
        m_grid->setDateLook(DbSessionFunctions::userDateLook(UserID(), LanguageID(), DataConnectionString()));
        for (const QuickFieldDefinition& f : m_form.fields) {
            GridColumn column = GridColumn::fromDefinition(f.caption, f.width, f.type == QLatin1String("AUTONUMBER") ? QStringLiteral("NUMBER") : f.type,
                f.decimals, f.rowAlign, f.labelList, f.canEdit && f.type != QLatin1String("AUTONUMBER"));
            column.newRowsEditable = f.type != QLatin1String("AUTONUMBER");
            m_grid->addColumn(column);
        }
        m_grid->setRefuseAdd(!m_form.canAdd || m_form.readOnly);
        m_grid->setRefuseDelete(!m_form.canDelete || m_form.readOnly);
        loadRows(data);
    } catch (const DbError& error) {
        Services::messages().critical(m_form.caption.isEmpty() ? bilingual("ฟอร์มข้อมูล", "Quick Form") : m_form.caption, error.report(LanguageID()));
        enterMode(QStringLiteral("BLANK"));
        return;
    }
    enterMode(QStringLiteral("VIEW"));
    selectKey(kept);
}

QStringList QuickGrid::currentKey() const
{
    QStringList key;
    const int row = m_grid->Row();
    if (row < 1 || !m_form.isLoaded())
        return key;
    for (int col : m_form.keyColumns())
        key << qd8::text(m_grid->GetValue(row, col));
    return key;
}

void QuickGrid::selectKey(const QStringList& key)
{
    if (key.isEmpty() || key.join(QString()).isEmpty())
        return;
    const QList<int> columns = m_form.keyColumns();
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        int same = 0;
        while (same < columns.size() && qd8::text(m_grid->GetValue(row, columns[same])) == key.value(same))
            ++same;
        if (same == columns.size()) {
            m_grid->setRow(row);
            return;
        }
    }
}

void QuickGrid::loadRows(Connection& data)
{
    Recordset rs;
    rs.open(Sql(loadStatement()), data);
    QList<int> columns;
    for (const QuickFieldDefinition& f : m_form.fields) {
        columns << rs.fieldIndex(f.fieldName);
        if (columns.last() < 0)
            throw DbError(DbError::Kind::Usage,
                bilingual("ช่อง %1 ของฟอร์มข้อมูล %2 ไม่มีใน %3", "The field %1 of quick form %2 is not a column of %3")
                    .arg(f.fieldName, m_form.alias, m_form.view));
    }
    m_loaded.reserve(rs.recordCount());
    for (; !rs.eof(); rs.moveNext()) {
        QVariantList values;
        values.reserve(columns.size());
        for (int index : columns)
            values << rs.field(index);
        m_loaded << values;
    }
    m_grid->AddItems(m_loaded);
}

void QuickGrid::enterMode(const QString& mode)
{
    m_runMode = mode;
    const bool editing = mode == QLatin1String("ADD") || mode == QLatin1String("EDIT");
    m_grid->setReadOnly(!editing);
    m_selectButton->setEnabled(!editing && !m_locked);
    setbuttons();
}

QStringList QuickGrid::buttonsShown(const QString& mode) const
{
    if (mode == QLatin1String("BLANK"))
        return {QStringLiteral("Close")};
    QStringList shown;
    if (mode == QLatin1String("VIEW")) {
        shown = {QStringLiteral("Close"), QStringLiteral("Filter")};
        if (!m_form.readOnly) {
            shown << QStringLiteral("Edit");
            if (m_form.canAdd)
                shown << QStringLiteral("Add");
        }
        if (!m_form.printCommand.isEmpty() || m_form.masterReportNo > 0)
            shown << QStringLiteral("Print");
        return shown;
    }
    shown = {QStringLiteral("Update"), QStringLiteral("Cancel"), QStringLiteral("Filter")};
    if (m_form.canAdd)
        shown << QStringLiteral("Add");
    if (m_form.canDelete)
        shown << QStringLiteral("Delete");
    return shown;
}

void QuickGrid::setbuttons()
{
    if (m_runMode.isEmpty())
        m_runMode = QStringLiteral("BLANK");
    // Buttons keep their places across modes: a button the form offers in any mode stays on
    // the bar, disabled (its key dead too) where this mode does not show it; only one that
    // no mode offers is hidden.
    const QStringList shown = buttonsShown(m_runMode);
    const QStringList offered = buttonsShown(QStringLiteral("VIEW")) + buttonsShown(QStringLiteral("EDIT"));
    for (const QString& key : ButtonKeys) {
        QAction* action = button(key);
        action->setVisible(offered.contains(key) || shown.contains(key));
        action->setEnabled(shown.contains(key) && !m_refused.contains(key));
    }
}

void QuickGrid::SetPermission(PermissionObject& PM)
{
    HostedControl::SetPermission(PM);
    for (const QString& key : PermissionObject::ToolBarKeys)
        if (PM.right(key) == 0 && !m_refused.contains(key))
            m_refused << key;
}

bool QuickGrid::hasUnsavedChanges() const
{
    return m_grid->model()->hasChanges();
}

bool QuickGrid::event(QEvent* event)
{
    // Escape in an open cell editor gives up that cell, not every change (Cancel's key).
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        QWidget* focus = QApplication::focusWidget();
        if (focus && m_grid->isAncestorOf(focus) && !focus->inherits("QAbstractItemView")) {
            event->accept();
            return true;
        }
    }
    return HostedControl::event(event);
}

void QuickGrid::buttonClick(const QString& key)
{
    if (key == QLatin1String("Close")) {
        Q_EMIT CloseButtonClick();
    } else if (key == QLatin1String("Edit")) {
        enterMode(QStringLiteral("EDIT"));
    } else if (key == QLatin1String("Add")) {
        if (m_runMode == QLatin1String("VIEW"))
            enterMode(QStringLiteral("ADD"));
        if (const int row = m_grid->AddRow(); row > 0)
            fillNewRow(row);  // Insert in the grid does the same through AfterAddRow
    } else if (key == QLatin1String("Delete")) {
        if (m_grid->Row() > 0)
            m_grid->DeleteRow(m_grid->Row());
    } else if (key == QLatin1String("Update")) {
        save();
    } else if (key == QLatin1String("Cancel")) {
        if (hasUnsavedChanges()
            && !Services::messages().question(m_form.caption,
                bilingual("ต้องการยกเลิกการแก้ไขที่ยังไม่ได้บันทึกทั้งหมดใช่หรือไม่", "Drop every change that is not saved?")))
            return;
        cmdCancel_Click();
    } else if (key == QLatin1String("Print")) {
        print();
    } else if (key == QLatin1String("Filter")) {
        m_filter->setVisible(!m_filter->isVisible());
        if (m_filter->isVisible())
            m_filter->setFocus();
        else
            m_filter->clear();
    }
}

void QuickGrid::cmdCancel_Click()
{
    FillData();
}

void QuickGrid::applyFilter(const QString& filterText)
{
    // Show only the rows holding the text in any column; the others stay in the grid.
    m_filtered = !filterText.trimmed().isEmpty();
    for (int row = 1; row <= m_grid->Rows(); ++row) {
        bool match = !m_filtered;
        for (int col = 1; !match && col <= m_grid->Cols(); ++col)
            match = m_grid->TextMatrix(row, col).contains(filterText.trimmed(), Qt::CaseInsensitive);
        m_grid->setRowHidden(row, !match);
    }
}

void QuickGrid::fillNewRow(int row)
{
    for (int col = 1; col <= m_form.fields.size(); ++col) {
        const QuickFieldDefinition& f = m_form.fields[col - 1];
        if (!f.defaultValue.isEmpty())
            m_grid->SetValue(row, col, f.defaultValue);
    }
}

void QuickGrid::pickIntoCell()
{
    const int row = m_grid->Row(), col = m_grid->Col();
    if (row < 1 || col < 1 || col > m_form.fields.size() || m_form.fields[col - 1].runQuickForm.isEmpty())
        return;
    const QString picked = SelectQuickForm(m_form.fields[col - 1].runQuickForm);
    if (!picked.isEmpty())
        m_grid->SetValue(row, col, picked);
}

QString QuickGrid::checkCell(int row, int col, const QVariant& value) const
{
    if (col < 1 || col > m_form.fields.size())
        return {};
    const QuickFieldDefinition& f = m_form.fields[col - 1];
    const QString shown = qd8::text(value);
    if (f.maxLength > 0 && shown.size() > f.maxLength)
        return bilingual("ยาวเกิน %1 ตัวอักษร", "Longer than %1 characters").arg(f.maxLength);
    if (!shown.isEmpty() && (f.minCon || f.maxCon)) {
        const double number = toNumber(value);
        if (f.minCon && number < f.minValue)
            return bilingual("ต้องไม่น้อยกว่า %1", "Must not be less than %1").arg(f.minValue);
        if (f.maxCon && number > f.maxValue)
            return bilingual("ต้องไม่มากกว่า %1", "Must not be more than %1").arg(f.maxValue);
    }
    if (!f.canDuplicate && !shown.isEmpty())
        for (int other = 1; other <= m_grid->Rows(); ++other)
            if (other != row && m_grid->RowMark(other) != QLatin1String("D") && qd8::text(m_grid->GetValue(other, col)) == shown)
                return bilingual("%1 ซ้ำกับรายการที่ %2", "%1 is already in row %2").arg(shown).arg(other);
    return {};
}

QString QuickGrid::SelectQuickForm(const QString& QuickFormAlias)
{
    return SelectQuickForm3(QuickFormAlias, 0, QString());
}

QString QuickGrid::SelectQuickForm2(const QString& QuickFormAlias, int HF)
{
    return SelectQuickForm3(QuickFormAlias, HF, QString());
}

QString QuickGrid::employeeScope(const QString& alias, int HF) const
{
    const QString column = employeeScopeColumn(alias);
    if (HF < 1 || column.isEmpty())
        return {};
    if (PermissionObject* host = permission())
        return host->employeeScope(column, HF - 1);
    const auto own = SessionServices::newCommandPermission();
    own->LoadCommandRights(UserID(), QString(), DataConnectionString(), ConnectionString());
    return own->employeeScope(column, HF - 1);
}

QString QuickGrid::SelectQuickForm3(const QString& QuickFormAlias, int HF, const QString& CustomFilter)
{
    try {
        Connection app;
        app.open(ConnectionString());
        const QuickFormMetadata form = QuickFormMetadata::read(app, QuickFormAlias, QuickFormMetadata::Reading::PickQuery);
        if (!form.found)
            return {};
        return SessionServices::listService().PickFromList(
            quickFormPickQuery(form, LanguageID(), employeeScope(QuickFormAlias, HF), CustomFilter, DataConnectionString()));
    } catch (const DbError& error) {
        Services::messages().critical(QuickFormAlias, error.report(LanguageID()));
        return {};
    }
}

} // namespace qd8
