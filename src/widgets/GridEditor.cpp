#include "widgets/GridEditor.h"

#include "foundation/CommaList.h"
#include "foundation/DbError.h"
#include "widgets/GridEditorDelegate_p.h"
#include "widgets/GridEditorModel.h"
#include "widgets/TableParts_p.h"
#include "widgets/Twips.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QProgressBar>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <QVBoxLayout>

namespace qd8 {

namespace {

constexpr int MessageMilliseconds = 5000;

// The suite's key codes (those of the Windows keyboard) for the keys a host may act on;
// 0 for keys it never sees.
int suiteKeyCode(int key)
{
    if ((key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9))
        return key;
    if (key >= Qt::Key_F1 && key <= Qt::Key_F24)
        return 112 + (key - Qt::Key_F1);
    switch (key) {
    case Qt::Key_Backspace: return 8;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: return 9;
    case Qt::Key_Return:
    case Qt::Key_Enter: return 13;
    case Qt::Key_Shift: return 16;
    case Qt::Key_Control: return 17;
    case Qt::Key_Alt: return 18;
    case Qt::Key_Pause: return 19;
    case Qt::Key_CapsLock: return 20;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Space: return 32;
    case Qt::Key_PageUp: return 33;
    case Qt::Key_PageDown: return 34;
    case Qt::Key_End: return 35;
    case Qt::Key_Home: return 36;
    case Qt::Key_Left: return 37;
    case Qt::Key_Up: return 38;
    case Qt::Key_Right: return 39;
    case Qt::Key_Down: return 40;
    case Qt::Key_Insert: return 45;
    case Qt::Key_Delete: return 46;
    default: return 0;
    }
}

int suiteShift(Qt::KeyboardModifiers modifiers)
{
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0)
         | (modifiers & Qt::AltModifier ? 4 : 0);
}

} // namespace

class GridEditor::Private {
public:
    explicit Private(GridEditor* q);

    bool validRow(int row) const { return row >= 1 && row <= model->rowCount(); }
    bool validCol(int col) const { return col >= 1 && col <= model->columnCount(); }
    bool isVisibleColumn(int column) const { return !view->isColumnHidden(column); }
    bool isEditableCell(const QModelIndex& index) const
    {
        return index.flags() & (Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    }
    int firstColumn(int row, bool editableOnly) const;
    void setCurrent(int row, int column);
    void moveToNextCell();
    int appendNewRow();
    void userAddRow();
    void userDeleteRow();
    void applyWidth(int column);
    void showMessage(const QModelIndex& index, const QString& message);
    void hideMessage();
    bool offerKey(QKeyEvent* event);
    // The screen-reader names of the grid and its parts in the session language.
    void nameParts(int languageId);

    GridEditor* const q;
    GridEditorModel* model;
    GridEditorDelegate* delegate;
    QTableView* view;
    QLabel* message;
    QTimer* messageTimer;
    QProgressBar* progress;
    Validator validator;
    QPointer<QWidget> parentForm;
    bool actionSingleControl = false;
    QPersistentModelIndex refused;
    bool refuseAdd = false;
    bool refuseDelete = false;
};

GridEditor::Private::Private(GridEditor* owner)
    : q(owner)
    , model(new GridEditorModel(owner))
    , delegate(new GridEditorDelegate(owner))
    , view(new QTableView(owner))
    , message(new QLabel(owner))
    , messageTimer(new QTimer(owner))
    , progress(new QProgressBar(owner))
{
    view->setModel(model);
    view->setItemDelegate(delegate);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setSelectionBehavior(QAbstractItemView::SelectItems);
    view->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                          | QAbstractItemView::EditKeyPressed | QAbstractItemView::AnyKeyPressed);
    view->setCornerButtonEnabled(false);
    view->setWordWrap(false);

    // Thai vowels and tone marks stand above and below the line: rows get room for both.
    const QFontMetrics metrics(view->font());
    const int textHeight = std::max(metrics.height(), metrics.boundingRect(QStringLiteral("ปั้ญู")).height());
    QHeaderView* rows = view->verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(textHeight + 8);
    rows->setFixedWidth(metrics.horizontalAdvance(QStringLiteral("WW")) + 8);
    rows->setDefaultAlignment(Qt::AlignCenter);
    rows->setHighlightSections(true);
    view->horizontalHeader()->setHighlightSections(true);
    view->horizontalHeader()->setTextElideMode(Qt::ElideRight);  // a clipped caption ends in "…"
    view->horizontalHeader()->setMinimumHeight(textHeight + 8);

    message->setObjectName(QStringLiteral("cellMessage"));
    message->setAutoFillBackground(true);
    message->setForegroundRole(QPalette::ToolTipText);
    message->setBackgroundRole(QPalette::ToolTipBase);
    message->setFrameShape(QFrame::Box);
    message->setMargin(3);
    message->setWordWrap(false);
    message->hide();
    messageTimer->setSingleShot(true);
    messageTimer->setInterval(MessageMilliseconds);
    QObject::connect(messageTimer, &QTimer::timeout, message, &QLabel::hide);

    progress->setObjectName(QStringLiteral("progress"));
    progress->setTextVisible(true);
    progress->hide();

    auto* layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(view);
    layout->addWidget(progress);
    q->setFocusProxy(view);
    nameParts(0);
}

void GridEditor::Private::nameParts(int languageId)
{
    q->setAccessibleName(inLanguage(languageId, "ตารางแก้ไขข้อมูล", "Grid editor"));
    nameTableParts(view, progress, languageId, "ตารางแก้ไขข้อมูล", "Grid editor");
    message->setAccessibleName(inLanguage(languageId, "ข้อความของช่อง", "Cell message"));
}

int GridEditor::Private::firstColumn(int row, bool editableOnly) const
{
    for (int c = 0; c < model->columnCount(); ++c) {
        if (isVisibleColumn(c) && (!editableOnly || isEditableCell(model->index(row, c))))
            return c;
    }
    return -1;
}

void GridEditor::Private::setCurrent(int row, int column)
{
    const QModelIndex index = model->index(row, column);
    if (!index.isValid() || index == view->currentIndex())
        return;
    view->setCurrentIndex(index);
    view->scrollTo(index);
}

void GridEditor::Private::moveToNextCell()
{
    const int rows = model->rowCount(), cols = model->columnCount();
    if (rows == 0 || cols == 0)
        return;
    const QModelIndex current = view->currentIndex();
    const int from = current.isValid() ? current.row() * cols + current.column() : -1;
    // The next cell the user can change; failing that, the next one shown.
    for (const bool editableOnly : {true, false}) {
        for (int at = from + 1; at < rows * cols; ++at) {
            const QModelIndex next = model->index(at / cols, at % cols);
            if (isVisibleColumn(next.column()) && (!editableOnly || isEditableCell(next))) {
                setCurrent(next.row(), next.column());
                return;
            }
        }
    }
}

int GridEditor::Private::appendNewRow()
{
    if (refuseAdd || model->columnCount() == 0)
        return -1;
    const int row = model->rowCount();
    model->insertRows(row, 1);
    int column = firstColumn(row, true);
    if (column < 0)
        column = std::max(firstColumn(row, false), 0);
    setCurrent(row, column);
    return row;
}

void GridEditor::Private::userAddRow()
{
    if (model->isReadOnly())
        return;
    const int row = appendNewRow();
    if (row >= 0)
        emit q->AfterAddRow(row + 1);
}

void GridEditor::Private::userDeleteRow()
{
    const int row = view->currentIndex().row();
    if (model->isReadOnly() || refuseDelete || row < 0 || model->rowEdit(row).deleted)
        return;
    bool cancel = false;
    emit q->BeforeDeleteRow(row + 1, cancel);
    if (cancel)
        return;
    if (model->markDeleted(row))
        emit q->AfterDeleteRow(row + 1);
}

void GridEditor::Private::applyWidth(int column)
{
    const int twips = model->column(column).width;
    view->setColumnHidden(column, twips <= 0);
    if (twips > 0)
        view->setColumnWidth(column, twipsToPixels(twips, q));
}

void GridEditor::Private::showMessage(const QModelIndex& index, const QString& text)
{
    refused = index;
    message->setText(text);
    message->adjustSize();
    const QRect cell = view->visualRect(index);
    QPoint at = view->viewport()->mapTo(q, cell.bottomLeft() + QPoint(0, 1));
    at.setX(std::clamp(at.x(), 0, std::max(0, q->width() - message->width())));
    if (at.y() + message->height() > q->height())
        at.setY(std::max(0, view->viewport()->mapTo(q, cell.topLeft()).y() - message->height() - 1));
    message->move(at);
    message->raise();
    message->show();
    messageTimer->start();
}

void GridEditor::Private::hideMessage()
{
    messageTimer->stop();
    message->hide();
}

bool GridEditor::Private::offerKey(QKeyEvent* event)
{
    int code = suiteKeyCode(event->key());
    if (code == 0)
        return false;
    emit q->KeyDown(code, suiteShift(event->modifiers()));
    return code == 0;
}

GridEditor::GridEditor(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->view->installEventFilter(this);
    connect(d->model, &GridEditorModel::cellEdited, this, [this](int row, int column) {
        emit AfterChange(row + 1, column + 1);
    });
    connect(d->model, &GridEditorModel::cellChangedByCode, this, [this](int row, int column) {
        emit CellChanged(row + 1, column + 1);
    });
    connect(d->model, &GridEditorModel::valueRefused, this, [this](const QModelIndex& index, const QString& text) {
        d->showMessage(index, text);
    });

    d->delegate->setEditGate([this](const QModelIndex& index) {
        d->hideMessage();
        d->refused = QPersistentModelIndex();
        bool cancel = false;
        emit BeforeEdit(index.row() + 1, index.column() + 1, cancel);
        return !cancel;
    });
    connect(d->delegate, &GridEditorDelegate::enterPressed, this, [this] {
        if (!d->refused.isValid() || d->refused != d->view->currentIndex())
            d->moveToNextCell();
    });
    connect(d->delegate, &GridEditorDelegate::functionKeyPressed, this, [this](QKeyEvent* event, bool& consumed) {
        // A handler that wrote the cell has used the key even when it left KeyCode alone.
        const QModelIndex current = d->view->currentIndex();
        const QString before = d->model->storedText(current.row(), current.column());
        consumed = d->offerKey(event) || d->model->storedText(current.row(), current.column()) != before;
    });
}

GridEditor::~GridEditor()
{
    // The view and model die with the QWidget base, after this object stopped being a
    // GridEditor: nothing they signal on the way out may reach it.
    d->model->disconnect(this);
    d->view->removeEventFilter(this);
}

int GridEditor::Row() const
{
    const QModelIndex current = d->view->currentIndex();
    return current.isValid() ? current.row() + 1 : 0;
}

void GridEditor::setRow(int row)
{
    if (!d->validRow(row) || row == Row())
        return;
    const int column = d->view->currentIndex().isValid() ? d->view->currentIndex().column() : d->firstColumn(row - 1, false);
    d->setCurrent(row - 1, std::max(column, 0));
}

int GridEditor::Col() const
{
    const QModelIndex current = d->view->currentIndex();
    return current.isValid() ? current.column() + 1 : 0;
}

void GridEditor::setCol(int col)
{
    if (!d->validCol(col) || col == Col() || d->model->rowCount() == 0)
        return;
    const int row = d->view->currentIndex().isValid() ? d->view->currentIndex().row() : 0;
    d->setCurrent(row, col - 1);
}

int GridEditor::Rows() const
{
    return d->model->rowCount();
}

int GridEditor::Cols() const
{
    return d->model->columnCount();
}

bool GridEditor::RefuseAdd() const
{
    return d->refuseAdd;
}

void GridEditor::setRefuseAdd(bool refuse)
{
    d->refuseAdd = refuse;
}

bool GridEditor::RefuseDelete() const
{
    return d->refuseDelete;
}

void GridEditor::setRefuseDelete(bool refuse)
{
    d->refuseDelete = refuse;
}

bool GridEditor::ReadOnly() const
{
    return d->model->isReadOnly();
}

void GridEditor::setReadOnly(bool readOnly)
{
    if (readOnly == d->model->isReadOnly())
        return;
    // An editor left open would still write into a grid that no longer takes changes.
    const QWidget* focus = QApplication::focusWidget();
    if (readOnly && focus && d->view->viewport()->isAncestorOf(focus))
        d->view->setFocus();
    d->model->setReadOnly(readOnly);
}

int GridEditor::SetParentForm(QWidget* PassForm, bool ActionSingleControl)
{
    d->parentForm = PassForm;
    d->actionSingleControl = PassForm && ActionSingleControl;
    return PassForm ? 1 : 0;
}

QWidget* GridEditor::parentForm() const
{
    return d->parentForm;
}

bool GridEditor::actionSingleControl() const
{
    return d->actionSingleControl;
}

int GridEditor::LanguageID() const
{
    return d->model->languageId();
}

void GridEditor::setLanguageID(int languageId)
{
    d->model->setLanguageId(languageId);
    d->nameParts(languageId);
}

void GridEditor::setDateLook(const DateLook& look)
{
    d->model->setDateLook(look);
}

void GridEditor::setRowHidden(int row, bool hidden)
{
    d->view->setRowHidden(row - 1, hidden);
}

bool GridEditor::isRowHidden(int row) const
{
    return d->view->isRowHidden(row - 1);
}

void GridEditor::Clear()
{
    d->hideMessage();
    d->model->clear();
}

void GridEditor::ClearRows()
{
    d->hideMessage();
    d->model->clearRows();
}

int GridEditor::AddColumn(const QString& Caption, int Width, const QString& ColumnType, int Decimals, int Alignment,
                          const QString& LabelList, bool CanEdit)
{
    return addColumn(GridColumn::fromDefinition(Caption, Width, ColumnType, Decimals, Alignment, LabelList, CanEdit));
}

int GridEditor::addColumn(const GridColumn& column)
{
    const int at = d->model->appendColumn(column);
    d->applyWidth(at);
    return at + 1;
}

QString GridEditor::AddColumns(const QString& CaptionList, const QString& WidthList, const QString& TypeList)
{
    const QStringList captions = splitList(CaptionList);
    const QStringList types = splitList(TypeList);
    QList<int> widths;
    try {
        widths = parseWidths(WidthList);
    } catch (const DbError& error) {
        return error.message();
    }
    if (widths.size() != captions.size())
        return QStringLiteral("The width list \"%1\" has %2 entries for %3 captions")
            .arg(WidthList).arg(widths.size()).arg(captions.size());
    for (qsizetype i = 0; i < captions.size(); ++i)
        AddColumn(captions[i], widths[i], types.value(i));
    return {};
}

int GridEditor::AddItem(const QVariantList& Values)
{
    return d->model->appendRow(Values) + 1;
}

int GridEditor::AddItems(const QList<QVariantList>& rows)
{
    return d->model->appendRows(rows) + 1;
}

int GridEditor::AddRow()
{
    return d->appendNewRow() + 1;
}

bool GridEditor::DeleteRow(int row)
{
    if (d->refuseDelete || !d->validRow(row))
        return false;
    return d->model->markDeleted(row - 1);
}

void GridEditor::RemoveRow(int row)
{
    if (d->validRow(row))
        d->model->removeRows(row - 1, 1);
}

QString GridEditor::TextMatrix(int row, int col) const
{
    if (row == 0)
        return d->validCol(col) ? d->model->column(col - 1).caption : QString();
    if (col == 0)
        return d->model->mark(row - 1);
    return d->model->text(row - 1, col - 1);
}

void GridEditor::setTextMatrix(int row, int col, const QString& text)
{
    if (row == 0) {
        if (d->validCol(col))
            d->model->setCaption(col - 1, text);
        return;
    }
    d->model->setText(row - 1, col - 1, text);
}

QVariant GridEditor::GetValue(int row, int col) const
{
    return d->model->value(row - 1, col - 1);
}

void GridEditor::SetValue(int row, int col, const QVariant& value)
{
    d->model->setValue(row - 1, col - 1, value);
}

QString GridEditor::RowMark(int row) const
{
    return d->model->mark(row - 1);
}

bool GridEditor::IsNewRow(int row) const
{
    return d->model->isNewRow(row - 1);
}

void GridEditor::ClearMarks()
{
    d->model->acceptChanges();
}

void GridEditor::SetCellType(int row, int col, const QString& ColumnType, int Decimals, const QString& LabelList)
{
    d->model->setCellFormat(row - 1, col - 1, GridColumn::fromDefinition({}, 0, ColumnType, Decimals, -1, LabelList));
}

void GridEditor::ShowProgress(const QString& Caption, int Maximum)
{
    d->progress->setRange(0, std::max(Maximum, 0));
    d->progress->setValue(0);
    d->progress->setFormat(Maximum > 0 ? Caption + QStringLiteral("  %p%") : Caption);
    if (!Caption.isEmpty())
        d->progress->setAccessibleName(Caption);
    d->progress->show();
}

void GridEditor::SetProgress(int Value)
{
    d->progress->setValue(Value);
}

void GridEditor::HideProgress()
{
    d->progress->hide();
}

void GridEditor::setValidator(Validator validator)
{
    d->validator = std::move(validator);
    if (!d->validator) {
        d->model->setValidator({});
        return;
    }
    d->model->setValidator([this](int row, int column, const QVariant& value) {
        return d->validator(row + 1, column + 1, value);
    });
}

const GridColumn& GridEditor::column(int col) const
{
    return d->model->column(col - 1);
}

GridEditorModel* GridEditor::model() const
{
    return d->model;
}

bool GridEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != d->view || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    auto* key = static_cast<QKeyEvent*>(event);
    d->hideMessage();
    if (d->offerKey(key))
        return true;
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        d->moveToNextCell();
        return true;
    case Qt::Key_Insert:
        d->userAddRow();
        return true;
    case Qt::Key_Delete:
        d->userDeleteRow();
        return true;
    default:
        return false;
    }
}

} // namespace qd8
