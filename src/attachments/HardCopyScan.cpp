#include "attachments/HardCopyScan.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QToolButton>
#include <QUrl>

namespace qd8 {

class HardCopyScan::Private {
public:
    void layOut(const QString& suffixes);
    void showButtons();
    void retranslate(HardCopyScan* q);

    QToolButton* buttons[ChangeIndex + 1] = {};
    int typeCount = TypeButtonCount;  // type buttons the list gave a caption
    QString suffixes;
    QString manualFolder;
    bool editing = false;
    bool changeFolder = false;
};

void HardCopyScan::Private::layOut(const QString& list)
{
    suffixes = list;
    if (list.isEmpty())
        return;
    const QStringList items = list.split(QLatin1Char(','));
    typeCount = int(qMin<qsizetype>(items.size(), TypeButtonCount));
    for (int i = 0; i < typeCount; ++i)
        buttons[i]->setText(items[i]);
    showButtons();
}

void HardCopyScan::Private::showButtons()
{
    for (int i = 0; i < TypeButtonCount; ++i)
        buttons[i]->setVisible(i < typeCount && !(i == TypeButtonCount - 1 && changeFolder));
    buttons[ChangeIndex]->setVisible(changeFolder);
    buttons[FolderIndex]->setEnabled(editing);
    buttons[ChangeIndex]->setEnabled(editing);
}

void HardCopyScan::Private::retranslate(HardCopyScan* q)
{
    buttons[FolderIndex]->setText(q->bilingual("โฟลเดอร์", "Folder"));
    buttons[ChangeIndex]->setText(q->bilingual("เปลี่ยนโฟลเดอร์", "Change Folder"));
    for (int i = 0; i < TypeButtonCount; ++i)
        buttons[i]->setToolTip(q->bilingual("เปิดหรือสแกนเอกสาร %1", "Open or scan the %1 copy").arg(buttons[i]->text()));
}

HardCopyScan::HardCopyScan(QWidget* parent)
    : HostedControl(parent)
    , d(std::make_unique<Private>())
{
    setAcceptDrops(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    for (int i = 0; i <= ChangeIndex; ++i) {
        auto* b = new QToolButton(this);
        b->setObjectName(QStringLiteral("scanButton%1").arg(i));
        b->setToolButtonStyle(Qt::ToolButtonTextOnly);
        row->addWidget(b);
        connect(b, &QToolButton::clicked, this, [this, i] {
            const QString suffix = i == FolderIndex ? QStringLiteral("FOLDER")
                : i == ChangeIndex                  ? QStringLiteral("CHANGE")
                                                    : d->buttons[i]->text();
            Q_EMIT ButtonClick(i, suffix);
        });
        d->buttons[i] = b;
    }
    row->addStretch(1);
    d->layOut(QStringLiteral("PDF,TIF,JPG,DWG"));
    d->retranslate(this);
}

HardCopyScan::~HardCopyScan() = default;

QString HardCopyScan::DefaultSuffix() const { return d->suffixes; }
void HardCopyScan::setDefaultSuffix(const QString& suffixes)
{
    d->layOut(suffixes);
    d->retranslate(this);
}
QString HardCopyScan::ManualFolder() const { return d->manualFolder; }
void HardCopyScan::setManualFolder(const QString& folder) { d->manualFolder = folder; }
bool HardCopyScan::EditStatus() const { return d->editing; }
void HardCopyScan::setEditStatus(bool editing)
{
    d->editing = editing;
    d->showButtons();
}
bool HardCopyScan::ChangeFolderActive() const { return d->changeFolder; }
void HardCopyScan::setChangeFolderActive(bool active)
{
    d->changeFolder = active;
    d->showButtons();
}

QAbstractButton* HardCopyScan::button(int index) const
{
    return index >= 0 && index <= ChangeIndex ? d->buttons[index] : nullptr;
}

void HardCopyScan::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void HardCopyScan::dropEvent(QDropEvent* event)
{
    QStringList paths;
    for (const QUrl& url : event->mimeData()->urls())
        if (url.isLocalFile())
            paths << url.toLocalFile();
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    Q_EMIT FilesDropped(paths);
}

void HardCopyScan::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate(this);
    HostedControl::changeEvent(event);
}

} // namespace qd8
