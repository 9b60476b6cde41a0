#include "editors/OptionEditor.h"

#include "database/ListService.h"
#include "database/QuickFormPick.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/Connection.h"
#include "foundation/DateText.h"
#include "foundation/DbError.h"
#include "foundation/Recordset.h"
#include "foundation/Services.h"
#include "foundation/TransactionGuard.h"
#include "foundation/Values.h"
#include "widgets/ButtonWords_p.h"
#include "widgets/EditorShortcuts_p.h"
#include "widgets/GridEditor.h"
#include "widgets/GridEditorModel.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSet>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace qd8 {

const QStringList OptionEditor::ButtonKeys = {QStringLiteral("Edit"), QStringLiteral("Update"), QStringLiteral("Cancel"),
    QStringLiteral("Default"), QStringLiteral("Close")};

namespace {

const QString ConfirmTitle = QStringLiteral("ยืนยันคำสั่ง");

// The types whose value is stored as a number too; the others store 0.
bool hasNumber(const QString& type)
{
    static const QSet<QString> numbered = {QStringLiteral("NUMBER"), QStringLiteral("AUTONUMBER"), QStringLiteral("ABSNUMBER"),
        QStringLiteral("DATE"), QStringLiteral("DATETIME"), QStringLiteral("TIME"), QStringLiteral("YESNO"), QStringLiteral("CHECK"),
        QStringLiteral("LABELLIST"), QStringLiteral("COLOR")};
    return numbered.contains(type);
}

// The number kept beside a value's text: dates as days since 30/12/1899 (time as the
// fraction of a day), label lists by their code, the rest as they read.
double numberOf(const QString& type, const QString& stored)
{
    if (!hasNumber(type) || stored.isEmpty())
        return 0;
    static const QDate epoch(1899, 12, 30);
    if (type == QLatin1String("DATE") || type == QLatin1String("DATETIME")) {
        const QDateTime at = QDateTime::fromString(stored, Qt::ISODate);
        const QDate day = at.isValid() ? at.date() : QDate::fromString(stored, Qt::ISODate);
        return day.isValid() ? double(epoch.daysTo(day)) + (at.isValid() ? at.time().msecsSinceStartOfDay() / 86400000.0 : 0) : 0;
    }
    if (type == QLatin1String("TIME")) {
        const auto time = parseTime(stored);
        return time ? time->msecsSinceStartOfDay() / 86400000.0 : 0;
    }
    return toNumber(stored);
}

// No module, or the back-office and management modules: the company options of every module.
bool everyModule(const QString& module)
{
    return module.isEmpty() || module == QLatin1String("BACKOFFICE") || module == QLatin1String("MIS");
}

// The grid type of a value cell: an option with a pick form holds the picked key.
QString cellType(const QString& type, bool pickForm)
{
    if (pickForm || !GridColumn::typeFromWord(type))
        return QStringLiteral("TEXT");
    return type == QLatin1String("AUTONUMBER") ? QStringLiteral("NUMBER") : type;
}

// One option row beside what the grid shows.
struct OptionRow {
    QString labelList;
    QString runQuickForm;
    QString defaultValue;
    bool stored = false;  // this scope holds a value
    bool reset = false;   // the save removes it
};

} // namespace

class OptionEditor::Private {
public:
    Scope scope;
    QString runMode = QStringLiteral("BLANK");
    QString selectCaption;
    QString defaultFormAlias;
    QString optionGroup;
    QString activeKey;
    QString groupName;
    QStringList refused;
    QList<QPair<QString, QString>> groups;
    QList<OptionRow> rows;
    bool resetting = false;

    QLabel* selectLabel = nullptr;
    QLineEdit* selector = nullptr;
    QToolButton* selectButton = nullptr;
    QLabel* title = nullptr;
    QToolBar* toolBar = nullptr;
    GridEditor* grid = nullptr;
    std::unique_ptr<DbDataObject> ownData;
};

OptionEditor::OptionEditor(const Scope& scope, QWidget* parent)
    : HostedControl(parent)
    , d(new Private)
{
    d->scope = scope;
    d->selectLabel = new QLabel(this);
    d->selector = new QLineEdit(this);
    d->selectButton = new QToolButton(this);
    d->title = new QLabel(this);
    d->toolBar = new QToolBar(this);
    d->grid = new GridEditor(this);
    d->selectLabel->setBuddy(d->selector);
    d->selector->setReadOnly(true);
    d->selector->setMaximumWidth(160);
    d->selectButton->setText(QStringLiteral("..."));
    auto* choose = new QAction(this);
    choose->setShortcut(QKeySequence(Qt::Key_F2));
    choose->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    d->selector->addAction(choose);
    d->selectButton->addAction(choose);
    connect(choose, &QAction::triggered, this, &OptionEditor::chooseGroup);
    connect(d->selectButton, &QToolButton::clicked, this, &OptionEditor::chooseGroup);
    d->title->setStyleSheet(QStringLiteral("font-weight: bold"));
    auto* selectorRow = new QHBoxLayout;
    selectorRow->addWidget(d->selectLabel);
    selectorRow->addWidget(d->selector);
    selectorRow->addWidget(d->selectButton);
    selectorRow->addWidget(d->title, 1);
    for (const QString& key : ButtonKeys) {
        QAction* action = d->toolBar->addAction(key, this, [this, key] { buttonClick(key); });
        action->setObjectName(key);
        bindEditorShortcut(action, key, this);
        if (PermissionObject::ToolBarKeys.contains(key))
            registerToolButton(key, action);
    }
    d->toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->addLayout(selectorRow);
    layout->addWidget(d->toolBar);
    layout->addWidget(d->grid, 1);

    d->grid->setRefuseAdd(true);
    d->grid->setRefuseDelete(true);
    d->grid->setReadOnly(true);
    d->grid->setValidator([this](int row, int col, const QVariant& value) -> QString {
        if (col == ColValue && d->grid->TextMatrix(row, ColBlank) != QLatin1String("1") && qd8::text(value).trimmed().isEmpty())
            return bilingual("ตัวเลือกนี้ต้องระบุค่า", "This option needs a value");
        return {};
    });
    connect(d->grid, &GridEditor::KeyDown, this, [this](int& keyCode, int) {
        if (keyCode == 113 && d->runMode == QLatin1String("EDIT")) {
            keyCode = 0;
            pickValue();
        }
    });
    const auto valueChanged = [this](int row, int col) {
        if (col != ColValue || row < 1 || row > d->rows.size())
            return;
        OptionRow& option = d->rows[row - 1];
        option.reset = d->resetting;
        // Where the value now comes from: this scope once changed, the default once reset.
        const bool differs = d->grid->model()->storedText(row - 1, ColValue - 1) != option.defaultValue;
        d->grid->model()->setText(row - 1, ColFrom - 1, fromText(option.reset ? std::nullopt : std::optional(this->scope()), differs));
    };
    connect(d->grid, &GridEditor::AfterChange, this, valueChanged);
    connect(d->grid, &GridEditor::CellChanged, this, valueChanged);
    setbuttons();
    retranslate();
}

OptionEditor::~OptionEditor() = default;

QString OptionEditor::RUNMODE() const
{
    return d->runMode;
}

void OptionEditor::setRUNMODE(const QString& mode)
{
    d->runMode = mode;
}

QString OptionEditor::SelectCaption() const
{
    return d->selectLabel->text();
}

void OptionEditor::setSelectCaption(const QString& caption)
{
    d->selectCaption = caption;
    retranslate();
}

QString OptionEditor::DefaultFormAlias() const
{
    return d->defaultFormAlias;
}

void OptionEditor::setDefaultFormAlias(const QString& alias)
{
    d->defaultFormAlias = alias;
}

QString OptionEditor::OptionGroup() const
{
    return d->optionGroup;
}

void OptionEditor::setOptionGroup(const QString& group)
{
    d->optionGroup = group;
}

OptionScope OptionEditor::scope() const
{
    return d->scope.scope;
}

void OptionEditor::setActiveKey(const QString& key)
{
    d->activeKey = key;
}

QString OptionEditor::activeKey() const
{
    return d->activeKey;
}

QString OptionEditor::scopeKey() const
{
    switch (scope()) {
    case OptionScope::Company: return {};
    case OptionScope::User: return QString::number(UserID());
    case OptionScope::Host: return d->activeKey;
    case OptionScope::Branch: break;
    }
    if (!d->activeKey.isEmpty() || DataConnectionString().isEmpty())
        return d->activeKey;
    Connection data;
    data.open(DataConnectionString());
    return DbDataObject::userBranch(data, UserID());
}

GridEditor* OptionEditor::grid() const
{
    return d->grid;
}

GridEditor* OptionEditor::hostedGrid() const
{
    return d->grid;
}

QAction* OptionEditor::button(const QString& key) const
{
    return d->toolBar->findChild<QAction*>(key);
}

const QList<QPair<QString, QString>>& OptionEditor::groups() const
{
    return d->groups;
}

QString OptionEditor::selectedGroup() const
{
    return d->selector->text();
}

QStringList OptionEditor::propertyKeysRead() const
{
    return {QStringLiteral("ConnectionString"), QStringLiteral("DataConnectionString"), QStringLiteral("OptionGroup")};
}

QString OptionEditor::typeCaption(const QString& typeWord, bool pickForm, int languageId)
{
    if (pickForm)
        return inLanguage(languageId, "F2 เลือกข้อมูล", "F2 Select Data");
    const QString type = normalTypeWord(typeWord);
    if (type == QLatin1String("NUMBER") || type == QLatin1String("AUTONUMBER"))
        return inLanguage(languageId, "จำนวน (-1.00)", "Number (-1.00)");
    if (type == QLatin1String("ABSNUMBER"))
        return inLanguage(languageId, "จำนวนบวก (1.00)", "Absolute Number (1.00)");
    if (type == QLatin1String("DATE"))
        return inLanguage(languageId, "วันที่ (", "Date (") + datePattern(languageId) + QLatin1Char(')');
    if (type == QLatin1String("DATETIME"))
        return inLanguage(languageId, "วันที่ (", "Date (") + dateTimePattern(languageId) + QLatin1Char(')');
    if (type == QLatin1String("TIME"))
        return inLanguage(languageId, "เวลา (HH:MM)", "Time (HH:MM)");
    if (type == QLatin1String("YESNO") || type == QLatin1String("CHECK"))
        return QStringLiteral("Yes/No");
    if (type == QLatin1String("LABELLIST"))
        return inLanguage(languageId, "F2 เลือกรายการ", "F2 Select List");
    if (type == QLatin1String("COLOR"))
        return inLanguage(languageId, "สี (F2)", "Colour (F2)");
    return inLanguage(languageId, "ตัวอักษร", "Text");
}

QString OptionEditor::optionQuery(const QString& group) const
{
    const QString table = QLatin1String(d->scope.table), prefix = QLatin1String(d->scope.prefix);
    const bool jobOptions = scope() == OptionScope::Company
        && (d->optionGroup == QLatin1String("JOB") || d->optionGroup == QLatin1String("SERVICE"));
    if (jobOptions)
        return QStringLiteral("SELECT * FROM QD8TOption WHERE (TOptTOpGAlias='") + group
            + QStringLiteral("' OR TOptAlias='JOBCodeCaption') AND TOptFlag1<>0 ORDER BY TOptName");
    return QStringLiteral("SELECT * FROM ") + table + QStringLiteral(" WHERE ") + prefix + QStringLiteral("TOpGAlias='") + group
        + QLatin1Char('\'') + QLatin1String(d->scope.flagCondition) + QStringLiteral(" ORDER BY ") + prefix + QStringLiteral("Name");
}

QString OptionEditor::groupSource() const
{
    const QString& group = d->optionGroup;
    if (!d->scope.showColumn) {
        if (everyModule(group))
            return QStringLiteral("QD8VOptionGroup WHERE TOpGFlag1=1 AND TCmGFlag1=1 ORDER BY TOpGSort,TOpGTCmGAlias");
        return QStringLiteral("QD8VOptionGroup WHERE TOpGFlag1=1 AND TCmGFlag1=1 AND TOpGTCmGAlias='") + group
            + QStringLiteral("' ORDER BY TOpGSort,TOpGTCmGAlias");
    }
    return QStringLiteral("QD8VOptionGroup WHERE TOpGFlag1=1 AND ") + QLatin1String(d->scope.showColumn)
        + QStringLiteral("=1 AND TCmGFlag1=1 AND (TOpGTCmGAlias='") + group + QLatin1Char('\'')
        + (d->scope.withCenter ? QStringLiteral(" OR TOpGTCmGAlias='CENTER'") : QString()) + QStringLiteral(") ORDER BY TOpGTCmGAlias,")
        + QStringLiteral("TOpGSort");
}

void OptionEditor::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        retranslate();
        if (d->runMode == QLatin1String("VIEW"))
            FillData();
    }
    HostedControl::changeEvent(event);
}

void OptionEditor::retranslate()
{
    for (const QString& key : ButtonKeys)
        button(key)->setText(editorButtonText(key, LanguageID()));
    d->selectLabel->setText(d->selectCaption.isEmpty() ? bilingual("กลุ่มตัวเลือก", "Option Group") : d->selectCaption);
    setButtonWords(d->selectButton, bilingual("เลือกกลุ่มตัวเลือก (F2)", "Select Group (F2)"));
}

void OptionEditor::Refresh()
{
    d->groups.clear();
    if (ConnectionString().isEmpty())
        return;
    // The company editor reads the module's options with their groups from the combined view,
    // the others the groups offered to their scope.
    const bool company = scope() == OptionScope::Company;
    const QString& module = d->optionGroup;
    const Sql sql = !company   ? Sql("SELECT * FROM ") + groupSource()
        : everyModule(module)  ? Sql("SELECT * FROM QD8VOption ORDER BY TOptSort,TOptAlias")
                               : Sql("SELECT * FROM QD8VOption WHERE TCmGAlias=") + quoted(module) + " ORDER BY TOptSort,TOptAlias";
    const QString key = company ? QStringLiteral("TOptTOpGAlias") : QStringLiteral("TOpGAlias");
    try {
        Connection app;
        app.open(ConnectionString());
        Recordset rs;
        rs.open(sql, app);
        QSet<QString> listed;
        for (; !rs.eof(); rs.moveNext())
            if (const QString group = rs.text(key); !group.isEmpty() && !listed.contains(group)) {
                listed.insert(group);
                d->groups.append({group, rs.text(QStringLiteral("TOpGName") + nameSuffix())});
            }
    } catch (const DbError&) {
        // A list that cannot be read stays empty, as the suite's lists do.
    }
}

void OptionEditor::chooseGroup()
{
    if (d->runMode == QLatin1String("EDIT"))
        return;
    QString alias;
    try {
        alias = SessionServices::listService().PickFromList(QStringLiteral("Select Group"), QStringLiteral("TOpGAlias"),
            QStringLiteral("TOpGAlias,TOpGName") + nameSuffix(), QStringLiteral("ALIAS,Group Name"), QStringLiteral("0,4000"),
            QStringLiteral("0,0"), groupSource(), ConnectionString(), 0, 0, 0, 1, 0, 0);
    } catch (const DbError& error) {
        Services::messages().critical(QStringLiteral("Select Group"), error.userText(LanguageID()));
        return;
    }
    if (!alias.isEmpty())
        cmdWhereShow(alias);
}

void OptionEditor::cmdWhereShow(const QString& KeyType)
{
    d->selector->setText(KeyType);
    FillData();
    Q_EMIT ChangeGroup();
}

QString OptionEditor::fromText(std::optional<OptionScope> from, bool differs) const
{
    QString text;
    if (!from)
        text = bilingual("ค่าเริ่มต้น", "Default");
    else if (*from == OptionScope::Company)
        text = bilingual("บริษัท", "Company");
    else if (*from == OptionScope::Branch)
        text = bilingual("สาขา", "Branch");
    else if (*from == OptionScope::Host)
        text = bilingual("เครื่อง", "Workstation");
    else
        text = bilingual("ผู้ใช้", "User");
    return differs ? text + QStringLiteral(" *") : text;
}

void OptionEditor::FillData()
{
    QString group = d->selector->text().trimmed();
    if (group.isEmpty())
        group = !d->defaultFormAlias.trimmed().isEmpty() ? d->defaultFormAlias.trimmed() : rememberedGroup();
    if (group.isEmpty() && !d->groups.isEmpty())
        group = d->groups.first().first;
    d->selector->setText(group);
    d->grid->Clear();
    d->rows.clear();
    d->title->clear();
    if (group.isEmpty() || ConnectionString().isEmpty() || DataConnectionString().isEmpty()) {
        enterMode(QStringLiteral("BLANK"));
        return;
    }
    if (const QString reason = unusableReason(); !reason.isEmpty()) {
        Services::messages().critical(bilingual("ตัวเลือก", "Options"), reason);
        enterMode(QStringLiteral("BLANK"));
        return;
    }
    try {
        Connection app;
        app.open(ConnectionString());
        {
            Recordset name;
            name.open(Sql("SELECT * FROM QD8TOptionGroup WHERE TOpGAlias=") + quoted(group), app);
            d->groupName = name.eof() ? group : name.text(QStringLiteral("TOpGName") + nameSuffix());
        }
        d->title->setText(d->groupName);
        const QString prefix = QLatin1String(d->scope.prefix);
        Recordset rs;
        rs.open(Sql(optionQuery(group)), app);
        const QHash<QString, QString> stored = options().storedOptions(scope(), scopeKey());
        // The columns by position, found once: a group may hold a thousand options.
        enum Field { Alias, Name, FieldType, Decimal, CanBlank, CanEdit, DefaultValue, LabelList, RunQuickForm, Mode, FieldCount };
        static const char* const names[FieldCount] = {
            "Alias", "Name", "FieldType", "Decimal", "CanBlank", "CanEdit", "DefaultValue", "LabelList", "RunQuickForm", "Mode"};
        int index[FieldCount];
        for (int f = 0; f < FieldCount; ++f)
            index[f] = rs.fieldIndex(prefix + QLatin1String(names[f]) + (f == Name ? nameSuffix() : QString()));
        const auto column = [&rs, &index](Field f) { return index[f] < 0 ? QString() : qd8::text(rs.field(index[f])); };
        // A flag left empty allows.
        const auto flag = [&column](Field f) { return column(f).isEmpty() ? QStringLiteral("1") : QString::number(int(toNumber(column(f)))); };
        struct Cell {
            QString type;
            int decimals;
            QString labelList;
            bool editable;
        };
        QList<QVariantList> values;
        QList<Cell> cells;
        for (; !rs.eof(); rs.moveNext()) {
            OptionRow option;
            const QString alias = column(Alias);
            const QString type = normalTypeWord(column(FieldType));
            option.labelList = column(LabelList);
            option.runQuickForm = column(RunQuickForm);
            option.defaultValue = column(DefaultValue);
            const auto found = stored.constFind(alias);
            option.stored = found != stored.constEnd();
            const QString value = option.stored ? *found : option.defaultValue;
            const QString edit = flag(CanEdit);
            const bool pickForm = !option.runQuickForm.isEmpty();
            values << QVariantList{alias, column(Name), option.defaultValue, typeCaption(type, pickForm, LanguageID()), value, column(Mode), type,
                column(Decimal), flag(CanBlank), edit, numberOf(type, value),
                fromText(option.stored ? std::optional(scope()) : std::nullopt, value != option.defaultValue)};
            // Yes/no values read "Yes" and "No", picked like a label list.
            const bool yesNo = !pickForm && (type == QLatin1String("YESNO") || type == QLatin1String("CHECK"));
            cells << Cell{yesNo ? QStringLiteral("LABELLIST") : cellType(type, pickForm), int(toNumber(column(Decimal))),
                yesNo ? QStringLiteral("0;No,1;Yes") : option.labelList, edit != QLatin1String("0")};
            if (yesNo)
                option.labelList = cells.last().labelList;
            d->rows << option;
        }
        d->grid->setLanguageID(LanguageID());
        d->grid->setDateLook(DbSessionFunctions::userDateLook(UserID(), LanguageID(), DataConnectionString()));
        const struct {
            const char* thai;
            const char* english;
            int width;
        } columns[] = {{"ชื่อตัวแปร", "A - Argument", 2400}, {"รายละเอียด", "B - Description", 4500}, {"ตัวอย่าง", "C - Sample", 1400},
            {"ชนิดตัวแปร", "D - Type", 2000}, {"ค่าที่กำหนด (F2)", "E - Value (F2)", 2600}, {"Mode", "Mode", 0}, {"Type", "Type", 0},
            {"Decimal", "Decimal", 0}, {"Blank", "Blank", 0}, {"Edit", "Edit", 0}, {"Value", "Value", 0},
            {"ที่มา (* ไม่ใช่ค่าเริ่มต้น)", "F - From (* not default)", 2200}};
        for (int col = ColAlias; col <= ColFrom; ++col) {
            const auto& c = columns[col - 1];
            d->grid->AddColumn(bilingual(c.thai, c.english), c.width, QStringLiteral("TEXT"), 0, -1, QString(), col == ColValue);
        }
        d->grid->AddItems(values);
        for (int row = 1; row <= cells.size(); ++row) {
            const Cell& cell = cells[row - 1];
            if (cell.type == QLatin1String("TEXT") && cell.editable)
                continue;  // the columns' own format
            GridColumn format = GridColumn::fromDefinition({}, 0, cell.type, cell.decimals, -1, cell.labelList, cell.editable);
            d->grid->model()->setCellFormat(row - 1, ColValue - 1, format);
            format.editable = false;
            d->grid->model()->setCellFormat(row - 1, ColSample - 1, format);
        }
    } catch (const DbError& error) {
        Services::messages().critical(bilingual("ตัวเลือก", "Options"), error.userText(LanguageID()));
        enterMode(QStringLiteral("BLANK"));
        return;
    }
    rememberGroup(group);
    enterMode(QStringLiteral("VIEW"));
}

void OptionEditor::enterMode(const QString& mode)
{
    d->runMode = mode;
    d->grid->setReadOnly(mode != QLatin1String("EDIT"));
    d->selectButton->setEnabled(mode != QLatin1String("EDIT"));
    setbuttons();
}

void OptionEditor::setbuttons()
{
    if (d->runMode.isEmpty())
        d->runMode = QStringLiteral("BLANK");
    QStringList shown = {QStringLiteral("Close")};
    if (d->runMode == QLatin1String("VIEW"))
        shown = {QStringLiteral("Edit"), QStringLiteral("Close")};
    else if (d->runMode == QLatin1String("EDIT") || d->runMode == QLatin1String("ADD"))
        shown = {QStringLiteral("Update"), QStringLiteral("Cancel"), QStringLiteral("Default")};
    // Buttons keep their places; the ones this mode does not offer are disabled.
    for (const QString& key : ButtonKeys)
        button(key)->setEnabled(shown.contains(key) && !d->refused.contains(key));
}

void OptionEditor::SetPermission(PermissionObject& PM)
{
    HostedControl::SetPermission(PM);
    for (const QString& key : PermissionObject::ToolBarKeys)
        if (PM.right(key) == 0 && !d->refused.contains(key))
            d->refused << key;
    setbuttons();
}

bool OptionEditor::hasUnsavedChanges() const
{
    return d->grid->model()->hasChanges();
}

void OptionEditor::buttonClick(const QString& key)
{
    if (key == QLatin1String("Close")) {
        Q_EMIT CloseButtonClick();
    } else if (key == QLatin1String("Edit")) {
        if (d->runMode == QLatin1String("VIEW"))
            enterMode(QStringLiteral("EDIT"));
    } else if (key == QLatin1String("Update")) {
        save();
    } else if (key == QLatin1String("Default")) {
        resetToDefault();
    } else if (key == QLatin1String("Cancel")) {
        if (hasUnsavedChanges()
            && !Services::messages().question(d->groupName,
                bilingual("ต้องการยกเลิกการแก้ไขที่ยังไม่ได้บันทึกทั้งหมดใช่หรือไม่", "Drop every change that is not saved?")))
            return;
        cmdCancel_Click();
    }
}

void OptionEditor::pickValue()
{
    const int row = d->grid->Row();
    if (row < 1 || row > d->rows.size() || d->grid->TextMatrix(row, ColEdit) == QLatin1String("0"))
        return;
    const OptionRow& option = d->rows[row - 1];
    const QString type = d->grid->TextMatrix(row, ColTypeWord);
    const QString current = d->grid->model()->storedText(row - 1, ColValue - 1);
    const QString title = d->grid->TextMatrix(row, ColAlias);
    QString picked;
    try {
        if (!option.runQuickForm.isEmpty()) {
            picked = QuickFormPick(option.runQuickForm, ConnectionString(), DataConnectionString());
        } else if (type == QLatin1String("LABELLIST") || !option.labelList.isEmpty()) {
            const QList<GridLabel> labels = GridColumn::parseLabelList(option.labelList);
            QStringList entries;
            int at = -1;
            for (const GridLabel& label : labels) {
                if (label.code == current)
                    at = int(entries.size());
                entries << label.label;
            }
            const int index = Services::picker().choose(title, entries, at);
            if (index >= 0 && index < labels.size())
                picked = labels[index].code;
        } else if (type == QLatin1String("COLOR")) {
            const int colour = Services::picker().pickColor(current.isEmpty() ? -1 : int(toNumber(current)), title);
            if (colour >= 0)
                picked = QString::number(colour);
        } else if (type == QLatin1String("DATE")) {
            const QDate day = Services::picker().pickDate(QDate::fromString(current, Qt::ISODate), d->grid->mapToGlobal(QPoint(0, 0)),
                DbSessionFunctions::userDateLook(UserID(), LanguageID(), DataConnectionString()));
            picked = day.toString(Qt::ISODate);
        }
    } catch (const DbError& error) {
        Services::messages().critical(title, error.userText(LanguageID()));
        return;
    }
    // Nothing picked (cancelled) leaves the value as it was.
    if (!picked.isEmpty())
        d->grid->SetValue(row, ColValue, picked);
}

void OptionEditor::cmdCancel_Click()
{
    FillData();
}

void OptionEditor::resetToDefault()
{
    const int row = d->grid->Row();
    if (d->runMode != QLatin1String("EDIT") || row < 1 || row > d->rows.size() || d->grid->TextMatrix(row, ColEdit) == QLatin1String("0"))
        return;
    d->resetting = true;
    d->grid->SetValue(row, ColValue, d->rows[row - 1].defaultValue);
    d->resetting = false;
    d->rows[row - 1].reset = true;
    d->grid->model()->setText(row - 1, ColFrom - 1, fromText(std::nullopt, false));
}

DataObject& OptionEditor::options()
{
    if (DataObject* host = dataObject())
        return *host;
    d->ownData = std::make_unique<DbDataObject>(DataConnectionString(), ConnectionString(), UserID(), UserLoginName());
    return *d->ownData;
}

bool OptionEditor::save(bool confirmed)
{
    auto& messages = Services::messages();
    if (!confirmed && !messages.question(ConfirmTitle, QStringLiteral("ท่านต้องการบันทึกข้อมูลที่เปลี่ยนแปลงนี้ ใช่หรือไม่")))
        return false;
    GridEditor* grid = d->grid;
    for (int row = 1; row <= grid->Rows() && !grid->TextMatrix(row, ColAlias).isEmpty(); ++row)
        if (grid->TextMatrix(row, ColBlank) == QLatin1String("0") && grid->model()->storedText(row - 1, ColValue - 1).trimmed().isEmpty()) {
            messages.critical(d->groupName, bilingual("กรุณาระบุค่าของ %1 ให้ถูกต้อง", "Enter a value for %1").arg(grid->TextMatrix(row, ColAlias)));
            return false;
        }
    try {
        DataObject& store = options();
        const QString key = scopeKey();
        Connection data;
        data.open(DataConnectionString());
        TransactionGuard transaction(data);
        for (int row = 1; row <= grid->Rows(); ++row) {
            const QString alias = grid->TextMatrix(row, ColAlias);
            if (alias.isEmpty())
                break;
            const OptionRow& option = d->rows.value(row - 1);
            if (option.reset) {
                store.removeOption(data, scope(), key, alias);
                continue;
            }
            // An option never set here and not changed keeps following the default.
            if (!option.stored && grid->RowMark(row) != QLatin1String("E"))
                continue;
            const QString type = grid->TextMatrix(row, ColTypeWord);
            const QString text = grid->model()->storedText(row - 1, ColValue - 1);
            store.storeOption(data, scope(), key, alias, text, numberOf(type, text));
        }
        transaction.commit();
    } catch (const DbError& error) {
        const QString detail = error.detail(LanguageID());
        messages.critical(d->groupName, error.userText(LanguageID()) + (detail.isEmpty() ? QString() : QStringLiteral("\n\n") + detail));
        return false;
    }
    messages.information(d->groupName, QStringLiteral("บันทึกข้อมูลเรียบร้อย"));
    d->runMode = QStringLiteral("VIEW");
    FillData();
    return true;
}

} // namespace qd8
