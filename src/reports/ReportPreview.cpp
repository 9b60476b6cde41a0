#include "reports/ReportPreview.h"

#include "database/DataObject.h"
#include "foundation/Language.h"
#include "foundation/Services.h"
#include "reports/ReportDocument.h"

#include <QAction>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QToolBar>
#include <QVBoxLayout>

namespace qd8 {

namespace {

// While a file is written the window takes its events this often.
constexpr qint64 EventsEveryMs = 50;

// One page of the report at the screen's own size, drawn whenever it is shown.
class PageView final : public QWidget {
public:
    PageView(const ReportDocument& document, QWidget* parent)
        : QWidget(parent), m_document(document)
    {
        const QSizeF points = document.pageLayout().fullRect(QPageLayout::Point).size();
        setFixedSize((points * logicalDpiX() / 72.0).toSize());
        setAttribute(Qt::WA_OpaquePaintEvent);
    }
    void setPage(int page)
    {
        m_page = page;
        update();
    }
    int page() const { return m_page; }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.setRenderHint(QPainter::Antialiasing);
        const qreal scale = logicalDpiX() / 72.0;
        painter.scale(scale, scale);
        m_document.paintPage(painter, m_page);
    }

private:
    const ReportDocument& m_document;
    int m_page = 0;
};

} // namespace

struct ReportPreview::Private {
    ReportPreview* q;
    ReportDocument* document;
    PageView* page = nullptr;
    QLabel* pageLabel = nullptr;
    QLabel* status = nullptr;
    QProgressBar* progress = nullptr;
    QPushButton* cancelButton = nullptr;
    QList<QAction*> outputs;  // print and the files: only for a whole report
    bool writing = false;
    bool stopWriting = false;

    QString text(const char* thai, const char* english) const { return inLanguage(document->definition().languageId, thai, english); }
    QAction* addAction(QToolBar* bar, const char* name, const char* thai, const char* english, const QKeySequence& key);
    void build();
    void showProgress();
    void readingEnded();
    // Asks for the file, reads the rest of the report, then writes it with `write`.
    bool writeFile(const QString& title, const QString& suffix, const QString& filter,
        const std::function<bool(const QString&, const std::function<bool(qsizetype)>&)>& write);
};

QAction* ReportPreview::Private::addAction(QToolBar* bar, const char* name, const char* thai, const char* english,
    const QKeySequence& key)
{
    auto* action = bar->addAction(text(thai, english));
    action->setObjectName(QLatin1String(name));
    if (!key.isEmpty()) {
        action->setShortcut(key);
        action->setToolTip(action->text() + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) + QLatin1Char(')'));
    }
    return action;
}

void ReportPreview::Private::build()
{
    auto* bar = new QToolBar(q);
    bar->setAccessibleName(text("แถบเครื่องมือรายงาน", "Report tool bar"));
    QAction* print = addAction(bar, "actPrint", "พิมพ์", "Print", QKeySequence(Qt::CTRL | Qt::Key_P));
    QAction* preview = addAction(bar, "actPrintPreview", "ตัวอย่างก่อนพิมพ์", "Print preview", {});
    QAction* pdf = addAction(bar, "actSavePdf", "บันทึก PDF", "Save PDF", {});
    QAction* xlsx = addAction(bar, "actExportXlsx", "ส่งออก XLSX", "Export XLSX", {});
    QAction* csv = addAction(bar, "actExportCsv", "ส่งออก CSV", "Export CSV", {});
    bar->addSeparator();
    QAction* previous = addAction(bar, "actPreviousPage", "หน้าก่อน", "Previous page", QKeySequence(Qt::Key_PageUp));
    QAction* next = addAction(bar, "actNextPage", "หน้าถัดไป", "Next page", QKeySequence(Qt::Key_PageDown));
    pageLabel = new QLabel(q);
    bar->addWidget(pageLabel);
    bar->addSeparator();
    QAction* close = addAction(bar, "actClose", "ปิด", "Close", QKeySequence(Qt::Key_Escape));
    outputs = {print, preview, pdf, xlsx, csv};
    for (QAction* action : bar->actions())
        action->setShortcutContext(Qt::WindowShortcut);

    QObject::connect(print, &QAction::triggered, q, &ReportPreview::print);
    QObject::connect(preview, &QAction::triggered, q, &ReportPreview::printPreview);
    QObject::connect(pdf, &QAction::triggered, q, &ReportPreview::savePdf);
    QObject::connect(xlsx, &QAction::triggered, q, &ReportPreview::exportXlsx);
    QObject::connect(csv, &QAction::triggered, q, &ReportPreview::exportCsv);
    QObject::connect(previous, &QAction::triggered, q, [this] { q->setCurrentPage(q->currentPage() - 1); });
    QObject::connect(next, &QAction::triggered, q, [this] { q->setCurrentPage(q->currentPage() + 1); });
    QObject::connect(close, &QAction::triggered, q, &QWidget::close);

    page = new PageView(*document, q);
    auto* scroll = new QScrollArea(q);
    scroll->setAlignment(Qt::AlignHCenter);
    scroll->setBackgroundRole(QPalette::Dark);
    scroll->setWidget(page);
    scroll->setAccessibleName(text("หน้ารายงาน", "Report page"));

    status = new QLabel(q);
    progress = new QProgressBar(q);
    progress->setRange(0, 0);
    progress->setAccessibleName(text("ความคืบหน้า", "Progress"));
    cancelButton = new QPushButton(text("ยกเลิก", "Cancel"), q);
    cancelButton->setObjectName(QStringLiteral("btnCancel"));
    cancelButton->setAccessibleName(cancelButton->text());
    cancelButton->setAutoDefault(false);
    QObject::connect(cancelButton, &QPushButton::clicked, q, &ReportPreview::cancel);

    auto* strip = new QHBoxLayout;
    strip->addWidget(status, 1);
    strip->addWidget(progress);
    strip->addWidget(cancelButton);
    auto* layout = new QVBoxLayout(q);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(bar);
    layout->addWidget(scroll, 1);
    layout->addLayout(strip);
}

void ReportPreview::Private::showProgress()
{
    const qsizetype rows = document->rowCount();
    status->setText(text("อ่านแล้ว %1 รายการ", "%1 rows read").arg(rows));
    const int pages = document->pageCount();
    pageLabel->setText(document->isComplete() ? text("หน้า %1 / %2", "Page %1 of %2").arg(page->page() + 1).arg(pages)
                                              : text("หน้า %1", "Page %1").arg(page->page() + 1));
    page->update();
}

void ReportPreview::Private::readingEnded()
{
    progress->hide();
    cancelButton->hide();
    const bool whole = document->isComplete();
    for (QAction* action : outputs)
        action->setEnabled(whole);
    showProgress();
    if (document->state() == ReportDocument::State::Cancelled)
        status->setText(text("ยกเลิกแล้ว: รายงานไม่ครบ %1 รายการ", "Cancelled: the report stops after %1 rows").arg(document->rowCount()));
    else if (document->state() == ReportDocument::State::Failed) {
        status->setText(document->errorText());
        Services::messages().critical(q->windowTitle(), document->errorText());
    }
    else
        status->setText(text("ทั้งหมด %1 รายการ", "%1 rows").arg(document->rowCount()));
}

bool ReportPreview::Private::writeFile(const QString& title, const QString& suffix, const QString& filter,
    const std::function<bool(const QString&, const std::function<bool(qsizetype)>&)>& write)
{
    if (writing)
        return false;
    const QString suggested = QDir::home().filePath(document->definition().title + suffix);
    const QString file = askFileToWrite(title, suggested, suffix, filter);
    if (file.isEmpty())
        return false;
    const QPointer<ReportPreview> self(q);
    if (!document->readAll() || !self)
        return false;

    writing = true;
    stopWriting = false;
    progress->setRange(0, 0);
    progress->show();
    cancelButton->show();
    status->setText(text("กำลังบันทึก %1", "Writing %1").arg(QDir::toNativeSeparators(file)));
    QElapsedTimer clock;
    clock.start();
    const bool written = write(file, [&](qsizetype) {
        if (clock.elapsed() >= EventsEveryMs) {
            QCoreApplication::processEvents();
            clock.restart();
        }
        return !stopWriting && self;
    });
    if (!self)
        return false;
    writing = false;
    progress->hide();
    cancelButton->hide();
    if (written) {
        status->setText(text("บันทึกแล้ว: %1", "Saved: %1").arg(QDir::toNativeSeparators(file)));
    } else if (stopWriting) {
        status->setText(text("ยกเลิกแล้ว: ไม่ได้บันทึกแฟ้ม", "Cancelled: no file was written"));
    } else {
        status->setText(document->errorText());
        Services::messages().critical(title, document->errorText());
    }
    return written;
}

ReportPreview* ReportPreview::open(DataObject* data, const ReportDefinition& definition, QWidget* parent)
{
    auto* preview = new ReportPreview(definition, data->connectionString(), parent);
    preview->setAttribute(Qt::WA_DeleteOnClose);
    preview->show();
    return preview;
}

ReportPreview::ReportPreview(const ReportDefinition& definition, const QString& connectionString, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , d(std::make_unique<Private>())
{
    d->q = this;
    d->document = new ReportDocument(definition, this);
    d->build();
    setWindowTitle(definition.title);
    setAccessibleName(definition.title);
    resize(d->page->width() + 60, 760);

    connect(d->document, &ReportDocument::progressed, this, [this] { d->showProgress(); });
    connect(d->document, &ReportDocument::finished, this, [this] { d->readingEnded(); });
    connect(d->document, &ReportDocument::cancelled, this, [this] { d->readingEnded(); });
    connect(d->document, &ReportDocument::failed, this, [this] { d->readingEnded(); });
    // Print and the files want the whole report: offered while reading, they wait for its end.
    d->document->start(connectionString);
    d->showProgress();
}

ReportPreview::~ReportPreview() = default;

ReportDocument* ReportPreview::document() const
{
    return d->document;
}

int ReportPreview::currentPage() const
{
    return d->page->page();
}

void ReportPreview::setCurrentPage(int page)
{
    const int last = d->document->pageCount() - 1;
    const int shown = qBound(0, page, qMax(last, 0));
    if (shown == d->page->page())
        return;
    d->page->setPage(shown);
    d->showProgress();
}

void ReportPreview::print()
{
    if (!d->document->readAll())
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(d->document->pageLayout());
    printer.setFullPage(true);
    printer.setDocName(d->document->definition().title);
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        d->document->paint(printer);
}

void ReportPreview::printPreview()
{
    if (!d->document->readAll())
        return;
    QPrinter printer(QPrinter::HighResolution);
    printer.setPageLayout(d->document->pageLayout());
    printer.setFullPage(true);
    QPrintPreviewDialog dialog(&printer, this);
    dialog.setWindowTitle(d->document->definition().title);
    connect(&dialog, &QPrintPreviewDialog::paintRequested, this, [this](QPrinter* target) { d->document->paint(*target); });
    dialog.exec();
}

bool ReportPreview::savePdf()
{
    return d->writeFile(d->text("บันทึก PDF", "Save PDF"), QStringLiteral(".pdf"), QStringLiteral("PDF (*.pdf)"),
        [this](const QString& file, const std::function<bool(qsizetype)>& step) {
            return d->document->writePdf(file, [&](int page) { return step(page); });
        });
}

bool ReportPreview::exportXlsx()
{
    return d->writeFile(d->text("ส่งออก XLSX", "Export XLSX"), QStringLiteral(".xlsx"), QStringLiteral("Excel (*.xlsx)"),
        [this](const QString& file, const std::function<bool(qsizetype)>& step) { return d->document->exportTable(file, step); });
}

bool ReportPreview::exportCsv()
{
    return d->writeFile(d->text("ส่งออก CSV", "Export CSV"), QStringLiteral(".csv"), QStringLiteral("CSV (*.csv)"),
        [this](const QString& file, const std::function<bool(qsizetype)>& step) { return d->document->exportTable(file, step); });
}

void ReportPreview::cancel()
{
    if (d->writing)
        d->stopWriting = true;
    else
        d->document->cancel();
}

void ReportPreview::closeEvent(QCloseEvent* event)
{
    cancel();
    event->accept();
}

} // namespace qd8
