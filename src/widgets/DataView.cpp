#include "widgets/DataView.h"

#include "foundation/CommaList.h"
#include "foundation/Connection.h"
#include "foundation/ConnectionPool.h"
#include "foundation/Cursor.h"
#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Services.h"
#include "widgets/DataViewModel_p.h"
#include "widgets/ExportMenu_p.h"
#include "widgets/TableParts_p.h"
#include "widgets/Twips.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QThreadPool>
#include <QToolButton>
#include <QTimer>
#include <QVBoxLayout>
#include <array>
#include <mutex>
#include <optional>

namespace qd8 {

namespace {

// Rows read per step of fetchAll(); the screen is kept alive between steps.
constexpr qsizetype ReadAllBatchRows = 10000;
constexpr qint64 EventsEveryMs = 50;
// Reading that lasts longer than this shows its progress.
constexpr qint64 ProgressAfterMs = 250;
// A count waits for the first screen of its rows to be painted, so that on a machine of few
// cores it does not compete with it; at most this long when the view does not paint.
constexpr int CountWaitsForPaintMs = 150;
// Row height when the list gives none: the font's line and a little air.
constexpr int RowPaddingPixels = 6;

// A total not known yet (-1) makes the progress bar a busy one.
int progressMaximum(qint64 total)
{
    return total <= 0 ? 0 : int(qMin<qint64>(total, INT_MAX));
}

struct ButtonText {
    DataView::Button button;
    const char* objectName;
    const char* caption;
};

constexpr std::array<ButtonText, 5> Buttons{{
    {DataView::Button::Add, "btnAdd", "เพิ่ม"},
    {DataView::Button::Edit, "btnEdit", "แก้ไข"},
    {DataView::Button::View, "btnView", "ดู"},
    {DataView::Button::Delete, "btnDelete", "ลบ"},
    {DataView::Button::Close, "btnClose", "ปิด"},
}};

// Where a count hands its result: the view while it lives.
struct CountReceiver {
    std::mutex mutex;
    DataView* view = nullptr;
};

// Counts run on a pool of their own: a count cannot be stopped half-way and a view must
// close at once, so a count may outlive its view. The pool is made after the connection
// pool, so at exit it waits for the last counts while their connections are still there.
// The application's end waits for them too: a count still connecting while the process
// exits would meet client libraries (libpq's Kerberos) already torn down.
QThreadPool& countPool()
{
    static QThreadPool* pool = [] {
        ConnectionPool::instance();
        static QThreadPool threads;
        qAddPostRoutine([] { threads.waitForDone(); });
        return &threads;
    }();
    return *pool;
}

} // namespace

struct DataView::Private {
    DataView* q;
    DataViewModel* model;
    QTableView* view;
    QProgressBar* progress;
    std::array<QPushButton*, Buttons.size()> buttons{};
    std::unique_ptr<ExportMenu> exportMenu;
    // The statement in force, read again whole by an export.
    Sql select;
    QString connectionString;
    int languageId = 0;
    std::shared_ptr<CountReceiver> receiver = std::make_shared<CountReceiver>();
    struct PendingCount {
        Sql count;
        QString connectionString;
    };
    std::optional<PendingCount> pendingCount;
    QTimer* countTimer;
    // Counts every open() and clear(): a count or a reading of an older statement is stale.
    quint64 generation = 0;
    qint64 total = -1;
    int rowHeightTwips = 0;
    bool readingAll = false;

    explicit Private(DataView* owner);
    void buildView();
    // The screen-reader names of the view and its parts, in the language of the dates.
    void nameParts(int languageId);
    void buildButtons(QHBoxLayout* strip);
    void buildExport(QHBoxLayout* strip);
    QList<TableExport::Column> exportColumns(QList<QString>& fields) const;
    void applyColumns();
    void applyRowHeight();
    int firstShownColumn() const;
    void queueCount(const Sql& count, const QString& connectionString);
    void startPendingCount();
    void startCount(const Sql& count, const QString& connectionString);
    static void runCount(const Sql& count, const QString& connectionString, std::shared_ptr<CountReceiver> receiver,
        quint64 generation);
    void countArrived(quint64 countGeneration, qint64 count);
    void showProgress(qint64 elapsedMs);
    void goToLastRow();
    bool handleKey(QKeyEvent* key);
    static bool isOwnKey(const QKeyEvent* key);
};

DataView::Private::Private(DataView* owner)
    : q(owner)
    , model(new DataViewModel(owner))
    , view(new QTableView(owner))
    , progress(new QProgressBar(owner))
    , countTimer(new QTimer(owner))
{
    countTimer->setSingleShot(true);
    QObject::connect(countTimer, &QTimer::timeout, owner, [this] { startPendingCount(); });
}

void DataView::Private::buildView()
{
    view->setModel(model);
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view->setSortingEnabled(false);  // the rows keep the statement's ORDER BY
    view->setWordWrap(false);
    view->verticalHeader()->hide();
    view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    view->horizontalHeader()->setHighlightSections(false);
    view->horizontalHeader()->setTextElideMode(Qt::ElideRight);  // a clipped caption ends in "…"
    view->installEventFilter(q);
    view->viewport()->installEventFilter(q);

    progress->setObjectName(QStringLiteral("progress"));
    nameParts(0);
    progress->setTextVisible(true);
    progress->hide();
}

void DataView::Private::nameParts(int languageId)
{
    q->setAccessibleName(inLanguage(languageId, "ตารางข้อมูล", "Data view"));
    nameTableParts(view, progress, languageId, "รายการ", "Rows");
    this->languageId = languageId;
    if (exportMenu)
        exportMenu->word(languageId);
}

void DataView::Private::buildExport(QHBoxLayout* strip)
{
    auto* button = new QToolButton(q);
    exportMenu = std::make_unique<ExportMenu>(button, q, [this](TableExport::Format format) { q->exportAs(format); });
    view->setContextMenuPolicy(Qt::ActionsContextMenu);
    view->addActions(exportMenu->actions());
    strip->addWidget(button);
    exportMenu->word(languageId);
}

QList<TableExport::Column> DataView::Private::exportColumns(QList<QString>& fields) const
{
    QList<TableExport::Column> columns;
    const QList<DataViewModel::Column>& shown = model->columns();
    for (int c = 0; c < shown.size(); ++c) {
        if (view->isColumnHidden(c))
            continue;
        TableExport::Type type = TableExport::Type::Text;
        switch (shown[c].type) {
        case DataViewModel::Type::Integer:
            type = TableExport::Type::Integer;
            break;
        case DataViewModel::Type::Number:
            type = TableExport::Type::Number;
            break;
        case DataViewModel::Type::Date:
            type = TableExport::Type::Date;
            break;
        case DataViewModel::Type::YesNo:
            type = TableExport::Type::YesNo;
            break;
        case DataViewModel::Type::Text:
            break;
        }
        // Twips to characters: a character of the list's font is about 120 twips wide.
        columns.append({shown[c].caption, type, qMax(shown[c].widthTwips / 120, 4)});
        fields << shown[c].field;
    }
    return columns;
}

void DataView::Private::buildButtons(QHBoxLayout* strip)
{
    static constexpr std::array<void (DataView::*)(), Buttons.size()> Signals{
        &DataView::addRequested, &DataView::editRequested, &DataView::viewRequested, &DataView::deleteRequested,
        &DataView::closeRequested};
    for (size_t i = 0; i < Buttons.size(); ++i) {
        auto* button = new QPushButton(QString::fromUtf8(Buttons[i].caption), q);
        button->setObjectName(QLatin1String(Buttons[i].objectName));
        button->setAccessibleName(button->text());
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, q, Signals[i]);
        strip->addWidget(button);
        buttons[i] = button;
    }
    buildExport(strip);
    strip->addStretch(1);
}

void DataView::Private::applyColumns()
{
    const QList<DataViewModel::Column>& columns = model->columns();
    for (int c = 0; c < columns.size(); ++c) {
        const int twips = columns[c].widthTwips;
        view->setColumnHidden(c, twips <= 0);
        if (twips > 0)
            view->setColumnWidth(c, twipsToPixels(twips, view));
    }
}

void DataView::Private::applyRowHeight()
{
    const int pixels = rowHeightTwips > 0 ? twipsToPixels(rowHeightTwips, view) : view->fontMetrics().height() + RowPaddingPixels;
    QHeaderView* rows = view->verticalHeader();
    rows->setMinimumSectionSize(qMin(pixels, rows->minimumSectionSize()));
    rows->setDefaultSectionSize(pixels);
}

int DataView::Private::firstShownColumn() const
{
    for (int c = 0; c < model->columnCount(); ++c) {
        if (!view->isColumnHidden(c))
            return c;
    }
    return 0;
}

void DataView::Private::queueCount(const Sql& count, const QString& connectionString)
{
    pendingCount = PendingCount{count, connectionString};
    if (q->isVisible())
        countTimer->start(CountWaitsForPaintMs);
    else
        startPendingCount();
}

void DataView::Private::startPendingCount()
{
    countTimer->stop();
    if (!pendingCount)
        return;
    const PendingCount pending = std::move(*pendingCount);
    pendingCount.reset();
    startCount(pending.count, pending.connectionString);
}

void DataView::Private::startCount(const Sql& count, const QString& connectionString)
{
    countPool().start([count, connectionString, receiver = receiver, generation = generation] {
        runCount(count, connectionString, receiver, generation);
    });
}

void DataView::Private::runCount(const Sql& count, const QString& connectionString, std::shared_ptr<CountReceiver> receiver,
    quint64 generation)
{
    qint64 total = -1;
    try {
        Connection connection;
        connection.open(connectionString);
        const auto rows = connection.query(count);
        if (rows->rowCount() > 0 && !rows->columns().isEmpty())
            total = rows->value(0, 0).toLongLong();
    } catch (const std::exception&) {
        total = -1;
    }
    std::lock_guard lock(receiver->mutex);
    if (DataView* view = receiver->view) {
        QMetaObject::invokeMethod(
            view, [view, generation, total] { view->d->countArrived(generation, total); }, Qt::QueuedConnection);
    }
}

void DataView::Private::countArrived(quint64 countGeneration, qint64 count)
{
    if (countGeneration != generation)
        return;
    total = count;
    if (progress->isVisible())
        progress->setMaximum(progressMaximum(total));
    emit q->totalKnown(total);
}

void DataView::Private::showProgress(qint64 elapsedMs)
{
    if (!progress->isVisible()) {
        if (elapsedMs < ProgressAfterMs)
            return;
        progress->setRange(0, progressMaximum(total));
        progress->show();
    }
    progress->setValue(int(qMin<qsizetype>(model->readRows(), progress->maximum() > 0 ? progress->maximum() : INT_MAX)));
}

void DataView::Private::goToLastRow()
{
    q->fetchAll();
    if (model->rowCount() > 0)
        q->setCurrentRow(model->rowCount() - 1);
}

bool DataView::Private::isOwnKey(const QKeyEvent* key)
{
    const Qt::KeyboardModifiers modifiers = key->modifiers() & ~Qt::KeypadModifier;
    if (key->key() == Qt::Key_End)
        return modifiers == Qt::ControlModifier;
    if (modifiers != Qt::NoModifier)
        return false;
    switch (key->key()) {
    case Qt::Key_Insert:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Delete:
    case Qt::Key_Escape:
        return true;
    default:
        return false;
    }
}

bool DataView::Private::handleKey(QKeyEvent* key)
{
    if (!isOwnKey(key))
        return false;
    switch (key->key()) {
    case Qt::Key_Insert:
        emit q->addRequested();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit q->editRequested();
        break;
    case Qt::Key_Space:
        emit q->viewRequested();
        break;
    case Qt::Key_Delete:
        emit q->deleteRequested();
        break;
    case Qt::Key_Escape:
        emit q->closeRequested();
        break;
    case Qt::Key_End:
        goToLastRow();
        break;
    default:
        break;
    }
    return true;
}

DataView::DataView(QWidget* parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this))
{
    d->buildView();

    auto* strip = new QHBoxLayout;
    strip->setContentsMargins(0, 0, 0, 0);
    d->buildButtons(strip);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(strip);
    layout->addWidget(d->view, 1);
    layout->addWidget(d->progress);
    setFocusProxy(d->view);

    d->receiver->view = this;
    d->applyRowHeight();
    connect(d->model, &QAbstractItemModel::modelReset, this, [this] { d->applyColumns(); });
    connect(d->model, &DataViewModel::fetchFailed, this, &DataView::fetchFailed);
    connect(d->view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (index.isValid())
            emit editRequested();
    });
}

DataView::~DataView()
{
    std::lock_guard lock(d->receiver->mutex);
    d->receiver->view = nullptr;
}

void DataView::setColumns(const QString& fieldList, const QString& captionList, const QString& widthList,
    const QString& typeList, int rowHeightTwips)
{
    QList<DataViewModel::Column> columns;
    QList<int> widths;
    try {
        widths = parseWidths(widthList);
    } catch (const DbError&) {
        d->model->setColumns({});
        throw;
    }
    const QStringList fields = splitList(fieldList);
    const QStringList captions = splitList(captionList);
    const QStringList types = splitList(typeList);
    for (qsizetype i = 0; i < fields.size(); ++i) {
        columns.append({fields[i].trimmed(), captions.value(i), widths.value(i),
            DataViewModel::typeOfCode(types.value(i, QStringLiteral("0"))), -1});
    }
    d->rowHeightTwips = rowHeightTwips;
    d->applyRowHeight();
    d->model->setColumns(columns);
}

void DataView::setKeyFields(const QStringList& fields)
{
    d->model->setKeyFields(fields);
}

void DataView::open(const Sql& select, const Sql& count, const QString& connectionString)
{
    ++d->generation;
    d->total = -1;
    d->pendingCount.reset();
    d->select = select;
    d->connectionString = connectionString;
    d->model->open(select, connectionString);
    if (!count.text().trimmed().isEmpty())
        d->queueCount(count, connectionString);
    if (d->model->rowCount() > 0)
        setCurrentRow(0);
}

void DataView::clear()
{
    ++d->generation;
    d->total = -1;
    d->pendingCount.reset();
    d->select = Sql();
    d->connectionString.clear();
    d->model->clear();
}

qint64 DataView::totalRows() const
{
    return d->total;
}

int DataView::fetchedRows() const
{
    return d->model->rowCount();
}

bool DataView::fetchAll()
{
    if (d->readingAll)
        return false;
    DataViewModel* model = d->model;
    const QPointer<DataView> self(this);
    const quint64 generation = d->generation;
    d->readingAll = true;
    model->setReading(true);
    QElapsedTimer clock;
    clock.start();
    qint64 lastEvents = 0;
    while (model->readMore(ReadAllBatchRows)) {
        if (clock.elapsed() - lastEvents < EventsEveryMs)
            continue;
        d->showProgress(clock.elapsed());
        QCoreApplication::processEvents();
        if (!self)
            return false;  // closed while reading
        if (d->generation != generation)
            break;  // another statement replaced this one
        lastEvents = clock.elapsed();
    }
    if (!self)
        return false;
    d->progress->hide();
    model->setReading(false);
    d->readingAll = false;
    if (d->generation != generation)
        return false;
    model->showReadRows();
    return !model->hasFailed();
}

int DataView::currentRow() const
{
    const QModelIndex current = d->view->currentIndex();
    return current.isValid() ? current.row() : -1;
}

void DataView::setCurrentRow(int row)
{
    if (row < 0) {
        d->view->selectionModel()->clear();
        return;
    }
    while (row >= d->model->rowCount() && d->model->canFetchMore({}))
        d->model->fetchMore({});
    if (row >= d->model->rowCount())
        return;
    const QModelIndex index = d->model->index(row, d->firstShownColumn());
    d->view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    d->view->scrollTo(index);
}

QString DataView::keyText() const
{
    return d->model->keyText(currentRow());
}

QVariant DataView::value(int row, const QString& field) const
{
    return d->model->value(row, field);
}

void DataView::setRowColour(std::function<QColor(const DataRow&)> colour)
{
    d->model->setRowColour(std::move(colour));
}

void DataView::setDateLook(const DateLook& look)
{
    d->model->setDateLook(look);
    d->nameParts(look.languageId);
}

bool DataView::exportRows(const QString& fileName)
{
    const int languageId = d->languageId;
    const QString title = inLanguage(languageId, "ส่งออกรายการ", "Export the list");
    if (d->connectionString.isEmpty())
        return false;
    QList<QString> fields;
    TableExport out(fileName, d->exportColumns(fields), languageId);
    try {
        // The statement again, whole: the rows read for the screen may be only the first ones.
        Cursor cursor;
        cursor.open(d->select, d->connectionString, ReadAllBatchRows);
        QList<int> columns;
        for (const QString& field : fields)
            columns << cursor.columnIndex(field);
        ProgressScope progress(title, QDir::toNativeSeparators(fileName), qMax<qint64>(d->total, 0));
        qsizetype written = 0;
        for (bool more = true; more; more = !cursor.atEnd() && cursor.fetch(ReadAllBatchRows) > 0) {
            for (; written < cursor.rowCount(); ++written) {
                QVariantList values;
                values.reserve(columns.size());
                for (int column : columns)
                    values << (column < 0 ? QVariant() : cursor.value(written, column));
                if (!out.addRow(values))
                    break;
            }
            if (!out.errorText().isEmpty())
                break;
            if (!progress.step(written)) {
                out.discard();
                return false;
            }
        }
    } catch (const DbError& e) {
        out.discard();
        Services::messages().critical(title, e.report(languageId));
        return false;
    }
    if (out.finish())
        return true;
    Services::messages().critical(title, out.errorText());
    return false;
}

bool DataView::exportAs(TableExport::Format format)
{
    QString name = window()->windowTitle().trimmed();
    if (name.isEmpty())
        name = accessibleName();
    const QString file = d->exportMenu->askFile(format, name);
    return !file.isEmpty() && exportRows(file);
}

void DataView::setButtonVisible(Button button, bool visible)
{
    d->buttons[size_t(button)]->setVisible(visible);
}

void DataView::setButtonCaption(Button button, const QString& caption)
{
    QPushButton* b = d->buttons[size_t(button)];
    b->setText(caption);
    b->setAccessibleName(caption);
}

QTableView* DataView::tableView() const
{
    return d->view;
}

DataViewModel* DataView::model() const
{
    return d->model;
}

bool DataView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == d->view->viewport() && event->type() == QEvent::Paint && d->pendingCount)
        d->countTimer->start(0);  // the first screen is being painted: count once it is
    if (watched == d->view) {
        if (event->type() == QEvent::ShortcutOverride && Private::isOwnKey(static_cast<QKeyEvent*>(event))) {
            event->accept();  // the list's own keys win over the window's shortcuts
            return true;
        }
        if (event->type() == QEvent::KeyPress)
            return d->handleKey(static_cast<QKeyEvent*>(event));
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace qd8
