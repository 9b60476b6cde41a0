#include "widgets/PickListDialog.h"

#include "foundation/DbError.h"
#include "foundation/Language.h"
#include "foundation/Services.h"
#include "foundation/TableExport.h"
#include "widgets/ExportMenu_p.h"
#include "widgets/PickListModel_p.h"
#include "widgets/Twips.h"

#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>

namespace qd8 {

namespace {

// Width of a column when the request hides every column: a list must show something.
constexpr int FallbackColumnTwips = 1440;
// Height the dialog opens with: about fifteen rows.
constexpr int DialogHeightTwips = 6600;
// Narrowest width the dialog sizes itself to.
constexpr int MinimumWidthTwips = 4800;

} // namespace

PickListDialog::PickListDialog(const PickRequest& request, QWidget* parent)
    : QDialog(parent)
    , m_model(new PickListModel(this))
    , m_search(new QLineEdit(this))
    , m_view(new QTableView(this))
    , m_message(new QLabel(this))
    , m_buttons(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this))
{
    // The dialog lives while one pick lasts: worded once, in the session language.
    const int language = Services::messages().language();
    const auto words = [language](const char* thai, const char* english) { return inLanguage(language, thai, english); };
    setWindowTitle(request.title);
    setAccessibleName(request.title.isEmpty() ? words("รายการให้เลือก", "Pick list") : request.title);

    auto* searchLabel = new QLabel(words("ค้นหา", "Search"), this);
    searchLabel->setBuddy(m_search);
    searchLabel->setAccessibleName(words("ป้ายช่องค้นหา", "Search label"));
    m_search->setAccessibleName(words("ค้นหา", "Search"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);

    m_view->setAccessibleName(words("รายการ", "Rows"));
    m_view->setModel(m_model);
    m_view->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setSortingEnabled(false);  // the rows keep the source's ORDER BY
    m_view->setWordWrap(false);
    m_view->setAlternatingRowColors(true);
    m_view->verticalHeader()->hide();
    m_view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    m_view->horizontalHeader()->setStretchLastSection(true);
    m_view->horizontalHeader()->setHighlightSections(false);

    m_message->setAccessibleName(words("ข้อความ", "Message"));
    m_message->setWordWrap(true);
    m_message->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QPalette palette = m_message->palette();
    palette.setColor(QPalette::WindowText, QColor(0xa0, 0x10, 0x10));
    m_message->setPalette(palette);
    m_message->hide();

    m_buttons->setAccessibleName(words("ปุ่มคำสั่ง", "Buttons"));
    QPushButton* ok = m_buttons->button(QDialogButtonBox::Ok);
    ok->setText(words("ตกลง", "OK"));
    ok->setAccessibleName(words("เลือก", "Pick"));
    ok->setDefault(true);
    QPushButton* cancel = m_buttons->button(QDialogButtonBox::Cancel);
    cancel->setText(words("ยกเลิก", "Cancel"));
    cancel->setAccessibleName(cancel->text());

    auto* searchRow = new QHBoxLayout;
    searchRow->addWidget(searchLabel);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(buildExport(language));
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(searchRow);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_message);
    layout->addWidget(m_buttons);

    connect(m_buttons, &QDialogButtonBox::accepted, this, &PickListDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &PickListDialog::reject);
    connect(m_search, &QLineEdit::textChanged, this, &PickListDialog::search);
    connect(m_view, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& index) {
        if (!index.isValid())
            return;
        m_view->setCurrentIndex(index);
        accept();
    });
    connect(m_view->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &PickListDialog::updatePickButton);
    connect(m_model, &PickListModel::fetchFailed, this, [this](const QString& message) { showMessage(message); });

    try {
        m_model->load(request);
        showMessage(m_model->notice());
    } catch (const DbError& e) {
        showMessage(e.report(language), e.statement());
    } catch (const std::exception& e) {
        showMessage(QString::fromLocal8Bit(e.what()));
    }
    applyColumns();
    sizeToRequest(request.dialogWidth);
    selectFirstRow();
    m_search->setFocus();
}

PickListDialog::~PickListDialog() = default;

QString PickListDialog::pick(const PickRequest& request, QWidget* parent)
{
    PickListDialog dialog(request, parent);
    return dialog.exec() == QDialog::Accepted ? dialog.pickedKey() : QString();
}

void PickListDialog::accept()
{
    const QModelIndex current = m_view->currentIndex();
    if (!current.isValid())
        return;  // nothing to pick: the dialog stays
    m_pickedKey = m_model->keyAt(current.row());
    QDialog::accept();
}

void PickListDialog::reject()
{
    m_pickedKey.clear();
    QDialog::reject();
}

bool PickListDialog::eventFilter(QObject* watched, QEvent* event)
{
    // The search box keeps the focus while the arrow and page keys move through the rows.
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        switch (static_cast<QKeyEvent*>(event)->key()) {
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            QCoreApplication::sendEvent(m_view, event);
            return true;
        default:
            break;
        }
    }
    return QDialog::eventFilter(watched, event);
}

void PickListDialog::applyColumns()
{
    const auto& columns = m_model->columns();
    const bool anyShown = std::any_of(columns.begin(), columns.end(), [](const auto& c) { return c.widthTwips > 0; });
    for (int c = 0; c < columns.size(); ++c) {
        const int twips = anyShown ? columns[c].widthTwips : FallbackColumnTwips;
        m_view->setColumnHidden(c, twips <= 0);
        if (twips > 0)
            m_view->setColumnWidth(c, twipsToPixels(twips, this));
    }
}

void PickListDialog::sizeToRequest(int dialogWidthTwips)
{
    int width = 0;
    if (dialogWidthTwips > 0) {
        width = twipsToPixels(dialogWidthTwips, this);
    } else {
        for (int c = 0; c < m_model->columnCount(); ++c) {
            if (!m_view->isColumnHidden(c))
                width += m_view->columnWidth(c);
        }
        const QMargins margins = layout()->contentsMargins();
        width += 2 * m_view->frameWidth() + m_view->verticalScrollBar()->sizeHint().width() + margins.left() + margins.right();
        int widest = width;
        if (const QScreen* screen = this->screen())
            widest = screen->availableGeometry().width() * 9 / 10;
        width = std::clamp(width, std::min(twipsToPixels(MinimumWidthTwips, this), widest), widest);
    }
    resize(width, std::max(twipsToPixels(DialogHeightTwips, this), sizeHint().height()));
}

void PickListDialog::search(const QString& text)
{
    // The first search reads whatever rows the source still holds.
    const bool reading = !text.isEmpty() && !m_model->isComplete();
    if (reading)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_model->setSearchText(text);
    if (reading)
        QGuiApplication::restoreOverrideCursor();
    selectFirstRow();
}

void PickListDialog::selectFirstRow()
{
    int column = 0;
    while (column < m_model->columnCount() && m_view->isColumnHidden(column))
        ++column;
    const QModelIndex first = m_model->index(0, column);
    if (first.isValid()) {
        m_view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        m_view->scrollTo(first);
    }
    updatePickButton();
}

void PickListDialog::showMessage(const QString& message, const QString& details)
{
    m_errorText = message;
    m_message->setText(message);
    m_message->setToolTip(details);
    m_message->setVisible(!message.isEmpty());
}

// Export beside the search, whose narrowing it keeps.
QPushButton* PickListDialog::buildExport(int language)
{
    auto* button = new QPushButton(this);
    m_export = std::make_unique<ExportMenu>(button, this, [this](TableExport::Format format) {
        const QString name = windowTitle().trimmed().isEmpty() ? accessibleName() : windowTitle().trimmed();
        const QString file = m_export->askFile(format, name);
        if (!file.isEmpty())
            exportRows(file);
    });
    m_export->word(language);
    return button;
}

bool PickListDialog::exportRows(const QString& fileName)
{
    const int language = Services::messages().language();
    const QString title = inLanguage(language, "ส่งออกรายการ", "Export the list");
    // The search narrows rows already read, so every row of the source is read first.
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    m_model->fetchAll();
    QGuiApplication::restoreOverrideCursor();
    QList<TableExport::Column> columns;
    QList<int> shown;
    const auto& all = m_model->columns();
    for (int c = 0; c < all.size(); ++c) {
        if (m_view->isColumnHidden(c))
            continue;
        // Twips to characters: a character of the list's font is about 120 twips wide.
        columns.append({all[c].caption, all[c].isText ? TableExport::Type::Text : TableExport::Type::Number,
            qMax(all[c].widthTwips / 120, 4)});
        shown << c;
    }
    TableExport out(fileName, columns, language);
    for (int row = 0; row < m_model->rowCount() && out.errorText().isEmpty(); ++row) {
        QVariantList values;
        for (int c : std::as_const(shown)) {
            const QString text = m_model->shownText(row, c);
            values << (text.isEmpty() ? QVariant() : QVariant(text));  // NULL stays an empty cell
        }
        out.addRow(values);
    }
    if (out.errorText().isEmpty() && out.finish())
        return true;
    Services::messages().critical(title, out.errorText());
    return false;
}

void PickListDialog::updatePickButton()
{
    m_buttons->button(QDialogButtonBox::Ok)->setEnabled(m_view->currentIndex().isValid());
}

} // namespace qd8
