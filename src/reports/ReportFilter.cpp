#include "reports/ReportFilter.h"

#include "database/DataObject.h"
#include "database/QuickFormPick.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Services.h"
#include "foundation/SqlRefusal.h"
#include "reports/ReportFavorites.h"
#include "widgets/ButtonWords_p.h"
#include "widgets/DateEdit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>

namespace qd8 {

namespace {

const char* RelativeProperty = "qd8RelativeDate";

} // namespace

class ReportFilter::Private {
public:
    struct Line {
        QLabel* caption = nullptr;
        QLabel* to = nullptr;
        QList<QWidget*> boxes;
        QList<QLabel*> relativeNotes;  // a date box's relative word, as words
        QList<QToolButton*> relativeButtons;
    };

    ReportFilter* q;
    QString group;
    QString params;
    QString query;
    int rlid = 0;
    QDate today;
    ReportCriteria criteria;
    QList<Line> lines;
    QList<ReportFavorite> favorites;
    qint64 favoriteId = 0;

    QComboBox* favoriteBox = nullptr;
    QPushButton* saveButton = nullptr;
    QPushButton* renameButton = nullptr;
    QPushButton* deleteButton = nullptr;
    QPushButton* defaultButton = nullptr;
    QLabel* favoriteLabel = nullptr;
    QScrollArea* scroll = nullptr;
    QWidget* form = nullptr;
    QGridLayout* grid = nullptr;
    QLabel* notice = nullptr;
    QPushButton* previewButton = nullptr;
    QPushButton* closeButton = nullptr;

    explicit Private(ReportFilter* owner) : q(owner) {}

    QString text(const char* thai, const char* english) const { return inLanguage(rlid, thai, english); }
    QString title() const { return text("เงื่อนไขรายงาน", "Report criteria"); }
    QString condition(ReportCriterion::Kind kind) const;
    QDate day() const { return today.isValid() ? today : QDate::currentDate(); }
    ReportFavorites store() const { return ReportFavorites(q->DataConnectionString(), q->UserID(), group, q->dataObject()); }
    const ReportFavorite* current() const
    {
        for (const ReportFavorite& f : favorites)
            if (f.id == favoriteId)
                return &f;
        return nullptr;
    }

    void buildLines();
    void retranslate();
    void show(int index);
    void showAll();
    QStringList valueOf(int index) const;
    void takeScreen();
    void fillFavorites();
    void startValues();
    void pick(int index, int box);
    void offerRelative(int index, int box);
    void failed(const DbError& error) const { Services::messages().critical(title(), error.report(rlid)); }
    QWidget* nextBox(QWidget* from) const;
};

void ReportFilter::Private::buildLines()
{
    delete scroll->takeWidget();
    form = new QWidget;
    grid = new QGridLayout(form);
    lines.clear();
    const QList<ReportCriterion>& all = criteria.criteria();
    for (int i = 0; i < all.size(); ++i) {
        const ReportCriterion& c = all[i];
        Line line;
        line.caption = new QLabel(form);
        grid->addWidget(line.caption, i, 0);
        for (int b = 0; b < c.boxes(); ++b) {
            QWidget* box = nullptr;
            if (c.typeWord == QLatin1String("YESNO") || c.typeWord == QLatin1String("LABELLIST")) {
                auto* combo = new QComboBox(form);
                combo->addItem(QString(), QString());
                for (const auto& [code, label] : c.choices(rlid))
                    combo->addItem(label, code);
                box = combo;
            } else if (c.isDate()) {
                auto* date = new DateEdit(form);
                // As wide as a date, however long the notes beside it are.
                date->setFixedWidth(date->fontMetrics().horizontalAdvance(QStringLiteral("00/00/00000")) + 24);
                date->setLanguageId(rlid);
                date->setToday(day());
                // A date typed over a relative one is a fixed date from now on.
                QObject::connect(date, &QLineEdit::textEdited, date, [this, i, b, date] {
                    date->setProperty(RelativeProperty, QString());
                    lines[i].relativeNotes[b]->clear();
                });
                box = date;
            } else {
                box = new QLineEdit(form);
            }
            box->setObjectName(QStringLiteral("criterion%1_%2").arg(i).arg(b));
            box->installEventFilter(q);
            line.boxes << box;
            auto* row = new QHBoxLayout;
            row->addWidget(box, 1);
            if (c.isDate()) {
                auto* note = new QLabel(form);
                note->setEnabled(false);
                note->setWordWrap(true);
                line.relativeNotes << note;
                auto* relative = new QToolButton(form);
                relative->setText(QStringLiteral("…"));
                relative->setFocusPolicy(Qt::NoFocus);  // F3 in the box does the same
                line.relativeButtons << relative;
                QObject::connect(relative, &QToolButton::clicked, q, [this, i, b] { offerRelative(i, b); });
                row->addWidget(relative);
                row->addWidget(note, 1);
            }
            if (b == 1) {
                line.to = new QLabel(form);
                grid->addWidget(line.to, i, 2);
            }
            // A single box takes the whole line; a range's ends sit either side of "to".
            if (c.boxes() == 1)
                grid->addLayout(row, i, 1, 1, 3);
            else
                grid->addLayout(row, i, b == 0 ? 1 : 3);
        }
        line.caption->setBuddy(line.boxes.value(0));
        lines << line;
    }
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(int(all.size()), 1);
    scroll->setWidget(form);
    retranslate();
    showAll();
}

void ReportFilter::Private::retranslate()
{
    const QList<ReportCriterion>& all = criteria.criteria();
    for (int i = 0; i < lines.size(); ++i) {
        const ReportCriterion& c = all[i];
        const Line& line = lines[i];
        line.caption->setText(c.captionIn(rlid) + (c.canBlank ? QString() : QStringLiteral(" *")));
        if (line.to)
            line.to->setText(text("ถึง", "to"));
        for (int b = 0; b < line.boxes.size(); ++b) {
            QWidget* box = line.boxes[b];
            const QString part = line.boxes.size() == 2 ? (b == 0 ? text(" ตั้งแต่", " from") : text(" ถึง", " to")) : QString();
            box->setAccessibleName(c.captionIn(rlid) + part);
            // The tool tip says what to type; a screen reader hears the condition too.
            QStringList tip;
            if (c.kind == ReportCriterion::Kind::OneOf)
                tip << text("หลายค่าคั่นด้วยเครื่องหมายจุลภาค", "Several values separated by commas");
            if (!c.quickForm.isEmpty())
                tip << text("F2 เลือกจากรายการ", "F2 picks from the list");
            if (!tip.isEmpty())
                box->setToolTip(tip.join(QStringLiteral("; ")));
            QStringList about{condition(c.kind)};
            if (!c.canBlank)
                about << text("ต้องระบุ", "required");
            if (auto* combo = qobject_cast<QComboBox*>(box)) {
                const auto choices = c.choices(rlid);
                for (int k = 0; k < choices.size() && k + 1 < combo->count(); ++k)
                    combo->setItemText(k + 1, choices[k].second);
            } else if (auto* date = qobject_cast<DateEdit*>(box)) {
                date->setLanguageId(rlid);
                setButtonWords(line.relativeButtons[b], text("วันที่เทียบกับวันพิมพ์ (F3)", "Date relative to the day printed (F3)"));
                tip << box->toolTip() << line.relativeButtons[b]->toolTip();
            }
            box->setAccessibleDescription((about + tip).join(QStringLiteral("; ")));
        }
    }
    scroll->setAccessibleName(title());
    favoriteLabel->setText(text("รายการโปรด", "Favourite"));
    favoriteBox->setAccessibleName(favoriteLabel->text());
    saveButton->setText(text("บันทึก…", "Save…"));
    renameButton->setText(text("เปลี่ยนชื่อ…", "Rename…"));
    deleteButton->setText(text("ลบ", "Delete"));
    previewButton->setText(text("แสดงรายงาน (F5)", "Preview (F5)"));
    closeButton->setText(text("ปิด (Esc)", "Close (Esc)"));
    if (favoriteBox->count() > 0)
        favoriteBox->setItemText(0, text("(ไม่ใช้รายการโปรด)", "(no favourite)"));
    const ReportFavorite* f = current();
    defaultButton->setText(f && f->isDefault ? text("เลิกเป็นค่าเริ่มต้น", "Not default") : text("ตั้งเป็นค่าเริ่มต้น", "Make default"));
}

QString ReportFilter::Private::condition(ReportCriterion::Kind kind) const
{
    using Kind = ReportCriterion::Kind;
    switch (kind) {
    case Kind::Equals: return text("เท่ากับค่าที่ระบุ", "equal to the value given");
    case Kind::Like: return text("มีคำที่พิมพ์", "holding the words typed");
    case Kind::Between: return text("ค่าในช่วงที่ระบุ", "within the range given");
    case Kind::AtLeast: return text("ตั้งแต่ค่าที่ระบุขึ้นไป", "the value given or more");
    case Kind::AtMost: return text("ไม่เกินค่าที่ระบุ", "up to the value given");
    case Kind::OneOf: return text("ค่าใดค่าหนึ่งที่ระบุ", "any of the values given");
    }
    return {};
}

// The screen shows criterion `index` as the criteria hold it.
void ReportFilter::Private::show(int index)
{
    const ReportCriterion& c = criteria.criteria()[index];
    const QStringList value = criteria.value(index);
    const Line& line = lines[index];
    for (int b = 0; b < line.boxes.size(); ++b) {
        QWidget* box = line.boxes[b];
        const QString part = c.kind == ReportCriterion::Kind::OneOf ? value.join(QStringLiteral(", ")) : value.value(b);
        QSignalBlocker quiet(box);
        if (auto* combo = qobject_cast<QComboBox*>(box)) {
            combo->setCurrentIndex(std::max(0, combo->findData(part.trimmed())));
        } else if (auto* date = qobject_cast<DateEdit*>(box)) {
            if (date->property(RelativeProperty).toString() != part || !RelativeDates::isRelative(part)) {
                const QDate resolved = criteria.dates().resolve(part, DateEra::Gregorian);
                if (resolved.isValid() || part.isEmpty())
                    date->setDate(resolved);
                else
                    date->setText(part);
                date->setProperty(RelativeProperty, RelativeDates::isRelative(part) ? part.trimmed().toUpper() : QString());
            }
            line.relativeNotes[b]->setText(RelativeDates::caption(date->property(RelativeProperty).toString(), rlid));
            if (date->property(RelativeProperty).toString().isEmpty())
                line.relativeNotes[b]->clear();
        } else if (auto* edit = qobject_cast<QLineEdit*>(box)) {
            edit->setText(part);
        }
        box->setEnabled(!criteria.isLocked(index));
    }
}

void ReportFilter::Private::showAll()
{
    for (int i = 0; i < lines.size(); ++i)
        show(i);
}

// The value of criterion `index` as its boxes hold it: a date box its relative word or ISO
// date, else its text as typed (so a wrong one can be named).
QStringList ReportFilter::Private::valueOf(int index) const
{
    const ReportCriterion& c = criteria.criteria()[index];
    QStringList parts;
    for (QWidget* box : lines[index].boxes) {
        if (auto* combo = qobject_cast<QComboBox*>(box)) {
            parts << combo->currentData().toString();
        } else if (auto* date = qobject_cast<DateEdit*>(box)) {
            const QString word = date->property(RelativeProperty).toString();
            parts << (!word.isEmpty() ? word : date->date().isValid() ? date->date().toString(Qt::ISODate) : date->text().trimmed());
        } else if (auto* edit = qobject_cast<QLineEdit*>(box)) {
            if (c.kind == ReportCriterion::Kind::OneOf) {
                for (const QString& entry : edit->text().split(QLatin1Char(','), Qt::SkipEmptyParts))
                    parts << entry.trimmed();
            } else {
                parts << edit->text();
            }
        }
    }
    return parts;
}

void ReportFilter::Private::takeScreen()
{
    for (int i = 0; i < lines.size(); ++i)
        if (!criteria.isLocked(i))
            criteria.setValue(i, valueOf(i));
}

void ReportFilter::Private::fillFavorites()
{
    QSignalBlocker quiet(favoriteBox);
    favoriteBox->clear();
    favoriteBox->addItem(text("(ไม่ใช้รายการโปรด)", "(no favourite)"), qint64(0));
    for (const ReportFavorite& f : favorites)
        favoriteBox->addItem(f.isDefault ? f.name + QStringLiteral(" ★") : f.name, f.id);
    favoriteBox->setCurrentIndex(std::max(0, favoriteBox->findData(favoriteId)));
    const bool chosen = favoriteId != 0;
    renameButton->setEnabled(chosen);
    deleteButton->setEnabled(chosen);
    defaultButton->setEnabled(chosen);
    retranslate();
}

// The values the screen starts with: the default favourite, else the last criteria used,
// else the defaults; the host's values over them.
void ReportFilter::Private::startValues()
{
    criteria.reset();
    favoriteId = 0;
    try {
        const ReportFavorites s = store();
        favorites = s.list();
        if (const auto preferred = s.defaultFavorite()) {
            favoriteId = preferred->id;
            criteria.apply(preferred->paramList);
        } else {
            criteria.apply(s.lastUsed());
        }
    } catch (const DbError& error) {
        favorites.clear();
        notice->setText(error.report(rlid, QStringLiteral(": ")));
    }
    criteria.apply(params);
}

void ReportFilter::Private::pick(int index, int box)
{
    const ReportCriterion& c = criteria.criteria()[index];
    auto* edit = qobject_cast<QLineEdit*>(lines[index].boxes.value(box));
    if (c.quickForm.isEmpty() || !edit || criteria.isLocked(index))
        return;
    QString key;
    try {
        key = QuickFormPick(c.quickForm, q->AppConnectionString(), q->DataConnectionString());
    } catch (const DbError& error) {
        failed(error);
        return;
    }
    if (key.isEmpty())
        return;
    if (c.kind == ReportCriterion::Kind::OneOf && !edit->text().trimmed().isEmpty())
        edit->setText(edit->text().trimmed() + QStringLiteral(", ") + key);
    else
        edit->setText(key);
    edit->setFocus();
}

void ReportFilter::Private::offerRelative(int index, int box)
{
    auto* date = qobject_cast<DateEdit*>(lines[index].boxes.value(box));
    if (!date || criteria.isLocked(index))
        return;
    QMenu menu(q);
    for (const QString& word : RelativeDates::words())
        menu.addAction(RelativeDates::caption(word, rlid))->setData(word);
    QAction* chosen = menu.exec(date->mapToGlobal(QPoint(0, date->height())));
    if (!chosen)
        return;
    QStringList value = valueOf(index);
    while (value.size() <= box)
        value << QString();
    value[box] = chosen->data().toString();
    criteria.setValue(index, value);
    date->setProperty(RelativeProperty, QString());
    show(index);
}

QWidget* ReportFilter::Private::nextBox(QWidget* from) const
{
    bool found = false;
    for (int i = 0; i < lines.size(); ++i)
        for (QWidget* box : lines[i].boxes) {
            if (found && box->isEnabled())
                return box;
            found = found || box == from;
        }
    return previewButton;
}

ReportFilter::ReportFilter(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>(this))
{
    d->favoriteLabel = new QLabel(this);
    d->favoriteBox = new QComboBox(this);
    d->favoriteBox->setObjectName(QStringLiteral("favorites"));
    d->favoriteBox->setMinimumContentsLength(20);
    d->favoriteLabel->setBuddy(d->favoriteBox);
    d->saveButton = new QPushButton(this);
    d->renameButton = new QPushButton(this);
    d->deleteButton = new QPushButton(this);
    d->defaultButton = new QPushButton(this);
    auto* favoriteBar = new QHBoxLayout;
    favoriteBar->addWidget(d->favoriteLabel);
    favoriteBar->addWidget(d->favoriteBox, 1);
    for (QPushButton* button : {d->saveButton, d->renameButton, d->deleteButton, d->defaultButton}) {
        button->setAutoDefault(false);
        favoriteBar->addWidget(button);
    }

    auto* scroll = d->scroll = new QScrollArea(this);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    d->notice = new QLabel(this);
    d->notice->setWordWrap(true);

    d->previewButton = new QPushButton(this);
    d->previewButton->setObjectName(QStringLiteral("preview"));
    d->closeButton = new QPushButton(this);
    d->closeButton->setObjectName(QStringLiteral("close"));
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(d->previewButton);
    buttons->addWidget(d->closeButton);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(favoriteBar);
    layout->addWidget(scroll, 1);
    layout->addWidget(d->notice);
    layout->addLayout(buttons);

    connect(d->previewButton, &QPushButton::clicked, this, &ReportFilter::Preview);
    connect(d->closeButton, &QPushButton::clicked, this, &ReportFilter::Close);
    connect(d->saveButton, &QPushButton::clicked, this, &ReportFilter::saveFavorite);
    connect(d->renameButton, &QPushButton::clicked, this, &ReportFilter::renameFavorite);
    connect(d->deleteButton, &QPushButton::clicked, this, &ReportFilter::deleteFavorite);
    connect(d->defaultButton, &QPushButton::clicked, this, &ReportFilter::toggleDefaultFavorite);
    connect(d->favoriteBox, &QComboBox::activated, this, [this](int index) {
        const qint64 id = d->favoriteBox->itemData(index).toLongLong();
        for (const ReportFavorite& f : d->favorites)
            if (f.id == id)
                return void(loadFavorite(f.name));
        loadFavorite(QString());
    });
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_F5), QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter)}) {
        auto* shortcut = new QShortcut(keys, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, &ReportFilter::Preview);
    }
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &ReportFilter::Close);
    d->fillFavorites();
}

ReportFilter::~ReportFilter() = default;

void ReportFilter::SetFirst(const QString& iREPORTGROUP, const QString& iParamList, const QString& TableQuery,
    std::shared_ptr<DataObject> iDataObj, std::shared_ptr<AppObject> iAppObj, std::shared_ptr<ClientObject> iClientObj)
{
    d->group = iREPORTGROUP;
    d->params = iParamList;
    d->query = TableQuery;
    if (iDataObj) {
        // The databases and the user; the language is RLID's.
        mutableSession().DataConnectionString = iDataObj->connectionString();
        mutableSession().AppConnectionString = iDataObj->appConnectionString();
        mutableSession().UserID = iDataObj->userId();
        mutableSession().UserLoginName = iDataObj->userLoginName();
    }
    HostedControl::SetFirst(std::move(iDataObj), std::move(iAppObj), std::move(iClientObj));
    Refresh();
}

void ReportFilter::Refresh()
{
    d->notice->clear();
    QList<ReportCriterion> all;
    try {
        all = ReportCriterion::read(d->group, AppConnectionString());
    } catch (const DbError& error) {
        d->notice->setText(error.report(d->rlid, QStringLiteral(": ")));
    }
    d->criteria = ReportCriteria(all, RelativeDates::on(d->day(), DataConnectionString()));
    d->startValues();
    d->buildLines();
    d->fillFavorites();
    if (QWidget* first = d->nextBox(nullptr); first && first != d->previewButton)
        first->setFocus();
}

int ReportFilter::RLID() const
{
    return d->rlid;
}

void ReportFilter::setRLID(int languageId)
{
    if (d->rlid == languageId)
        return;
    d->takeScreen();
    d->rlid = languageId;
    d->retranslate();
    d->showAll();  // dates in the language's era
}

void ReportFilter::setToday(QDate today)
{
    d->today = today;
    d->criteria.setDates(RelativeDates::on(d->day(), DataConnectionString()));
    for (const Private::Line& line : d->lines)
        for (QWidget* box : line.boxes)
            if (auto* date = qobject_cast<DateEdit*>(box))
                date->setToday(d->day());
    d->showAll();
}

const ReportCriteria& ReportFilter::criteria() const
{
    d->takeScreen();
    return d->criteria;
}

QString ReportFilter::favoriteName() const
{
    const ReportFavorite* f = d->current();
    return f ? f->name : QString();
}

QWidget* ReportFilter::editor(int criterion, int box) const
{
    return criterion >= 0 && criterion < d->lines.size() ? d->lines[criterion].boxes.value(box) : nullptr;
}

QComboBox* ReportFilter::favoriteBox() const
{
    return d->favoriteBox;
}

bool ReportFilter::Preview()
{
    d->takeScreen();
    int at = -1;
    if (const QString problem = d->criteria.problem(d->rlid, &at); !problem.isEmpty()) {
        Services::messages().critical(d->title(), problem);
        if (QWidget* box = editor(at))
            box->setFocus();
        return false;
    }
    const Sql statement = d->criteria.statement(d->query);
    if (statement.isBroken()) {
        d->failed(refusal(statement));
        return false;
    }
    try {
        d->store().rememberLast(d->criteria.paramList());
    } catch (const DbError&) {
        // Not remembering the criteria is no reason to refuse the report.
    }
    Q_EMIT PreviewAction(statement.text(), d->criteria.condition().text(), d->criteria.sentence(d->rlid), favoriteName());
    return true;
}

void ReportFilter::Close()
{
    Q_EMIT CloseAction();
}

bool ReportFilter::loadFavorite(const QString& name)
{
    const ReportFavorite* found = nullptr;
    for (const ReportFavorite& f : d->favorites)
        if (f.name == name)
            found = &f;
    if (!found && !name.isEmpty())
        return false;
    d->criteria.reset();
    d->favoriteId = found ? found->id : 0;
    if (found)
        d->criteria.apply(found->paramList);
    d->criteria.apply(d->params);
    for (const Private::Line& line : d->lines)
        for (QWidget* box : line.boxes)
            box->setProperty(RelativeProperty, QString());
    d->fillFavorites();
    d->showAll();
    return true;
}

void ReportFilter::saveFavorite()
{
    d->takeScreen();
    const std::optional<QString> answer = Services::picker().inputMultiLine(d->text("บันทึกเป็นรายการโปรด", "Save as a favourite"), favoriteName(), d->rlid);
    const QString name = answer ? answer->section(QLatin1Char('\n'), 0, 0).trimmed() : QString();
    if (name.isEmpty())
        return;
    for (const ReportFavorite& f : d->favorites)
        if (f.name == name && f.id != d->favoriteId
            && !Services::messages().question(d->title(), d->text("มีรายการโปรดชื่อ \"%1\" แล้ว ต้องการแทนที่หรือไม่", "A favourite named \"%1\" exists. Replace it?").arg(name)))
            return;
    try {
        ReportFavorites s = d->store();
        d->favoriteId = s.save(name, d->criteria.paramList());
        d->favorites = s.list();
    } catch (const DbError& error) {
        d->failed(error);
        return;
    }
    d->fillFavorites();
}

void ReportFilter::renameFavorite()
{
    const ReportFavorite* f = d->current();
    if (!f)
        return;
    const std::optional<QString> answer = Services::picker().inputMultiLine(d->text("เปลี่ยนชื่อรายการโปรด", "Rename the favourite"), f->name, d->rlid);
    const QString name = answer ? answer->section(QLatin1Char('\n'), 0, 0).trimmed() : QString();
    if (name.isEmpty() || name == f->name)
        return;
    try {
        ReportFavorites s = d->store();
        if (!s.rename(f->id, name)) {
            Services::messages().critical(d->title(), d->text("มีรายการโปรดชื่อ \"%1\" แล้ว", "A favourite named \"%1\" exists already.").arg(name));
            return;
        }
        d->favorites = s.list();
    } catch (const DbError& error) {
        d->failed(error);
        return;
    }
    d->fillFavorites();
}

void ReportFilter::deleteFavorite()
{
    const ReportFavorite* f = d->current();
    if (!f || !Services::messages().question(d->title(), d->text("ลบรายการโปรด \"%1\" หรือไม่", "Delete the favourite \"%1\"?").arg(f->name)))
        return;
    try {
        ReportFavorites s = d->store();
        s.remove(f->id);
        d->favorites = s.list();
    } catch (const DbError& error) {
        d->failed(error);
        return;
    }
    d->favoriteId = 0;
    d->fillFavorites();
}

void ReportFilter::toggleDefaultFavorite()
{
    const ReportFavorite* f = d->current();
    if (!f)
        return;
    try {
        ReportFavorites s = d->store();
        s.setDefault(f->isDefault ? 0 : f->id);
        d->favorites = s.list();
    } catch (const DbError& error) {
        d->failed(error);
        return;
    }
    d->fillFavorites();
}

bool ReportFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return HostedControl::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    for (int i = 0; i < d->lines.size(); ++i) {
        const int box = int(d->lines[i].boxes.indexOf(qobject_cast<QWidget*>(watched)));
        if (box < 0)
            continue;
        const bool enter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
        if (enter && (key->modifiers() & Qt::ControlModifier)) {
            Preview();
            return true;
        }
        if (key->key() == Qt::Key_F5) {
            Preview();
            return true;
        }
        if (key->key() == Qt::Key_Escape) {
            Close();
            return true;
        }
        if (enter) {
            d->nextBox(static_cast<QWidget*>(watched))->setFocus();
            return true;
        }
        if (key->key() == Qt::Key_F2) {
            d->pick(i, box);
            return true;
        }
        if (key->key() == Qt::Key_F3) {
            d->offerRelative(i, box);
            return true;
        }
    }
    return HostedControl::eventFilter(watched, event);
}

} // namespace qd8
