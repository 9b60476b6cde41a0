#include "navigation/DocumentToolBar.h"

#include "database/LookupScope_p.h"
#include "foundation/Services.h"
#include "widgets/ButtonWords_p.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>

namespace qd8 {

const QString DocumentToolBar::ClientConfigurationProgram = QStringLiteral("QD8ClientConfig.exe");

namespace {

constexpr int MaximumCaptionWidth = 180;  // pixels

struct ToggleMode {
    const char* caption;
    const char* toolTip;
    CommandSet set;
};

// Mode 1 loads the module list and mode 2 the main list, as the captions "G" (group) and
// "M" (module) have always been paired.
constexpr ToggleMode Modes[] = {
    {"U", "Toggle Buttons: User", CommandSet::User},
    {"G", "Toggle Buttons: Group", CommandSet::Module},
    {"M", "Toggle Buttons: Module", CommandSet::Main},
};

struct UtilityButton {
    QStyle::StandardPixmap icon;
    const char* thai;
    const char* english;
};

constexpr UtilityButton Utilities[] = {
    {QStyle::SP_DialogHelpButton, "วิธีใช้", "Help"},
    {QStyle::SP_DesktopIcon, "เครื่องคิดเลข", "Calculator"},
    {QStyle::SP_DirOpenIcon, "โฟลเดอร์รูปภาพ", "Image folder"},
    {QStyle::SP_FileDialogDetailedView, "โฟลเดอร์ข้อกำหนด", "Spec folder"},
    {QStyle::SP_FileDialogContentsView, "ค้นหารายงาน", "Report search"},
};

} // namespace

DocumentToolBar::DocumentToolBar(QWidget* parent)
    : ToolLauncher(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(2, 2, 2, 2);
    layout->setSpacing(2);
    for (int i = 0; i <= CommandButtons; ++i) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setObjectName(QStringLiteral("cmdCommand%1").arg(i));
        if (i == 0)
            connect(button, &QToolButton::clicked, this, &DocumentToolBar::toggleButtons);
        else
            connect(button, &QToolButton::clicked, this, [this, i] { commandButtonClick(i); });
        button->setVisible(i == 0);
        layout->addWidget(button);
        m_commands[i] = button;
    }
    layout->addStretch(1);
    for (int i = 0; i < UtilityButtons; ++i) {
        auto* button = new QToolButton(this);
        button->setAutoRaise(true);
        button->setIcon(style()->standardIcon(Utilities[i].icon));
        button->setObjectName(QStringLiteral("cmdUtility%1").arg(i));
        connect(button, &QToolButton::clicked, this, [this, i] { utilityButtonClick(i); });
        layout->addWidget(button);
        m_utilities[i] = button;
    }
    setMode(0);
}

DocumentToolBar::~DocumentToolBar() = default;

QToolButton* DocumentToolBar::commandButton(int index) const
{
    return index >= 0 && index <= CommandButtons ? m_commands[index] : nullptr;
}

QToolButton* DocumentToolBar::utilityButton(int index) const
{
    return index >= 0 && index < UtilityButtons ? m_utilities[index] : nullptr;
}

QString DocumentToolBar::commandAlias(int index) const
{
    return index >= 1 && index <= CommandButtons ? m_aliases[index] : QString();
}

void DocumentToolBar::Refresh()
{
    deriveCommandCentre();
    // The icons alone speak no language: the tool tip and the screen-reader name say what each does.
    for (int i = 0; i < UtilityButtons; ++i)
        setButtonWords(m_utilities[i], bilingual(Utilities[i].thai, Utilities[i].english));
    setMode(0);
}

void DocumentToolBar::DOUSERLIST()
{
    fill(CommandSet::User);
}

void DocumentToolBar::DOMODULELIST()
{
    fill(CommandSet::Module);
}

void DocumentToolBar::DOMAINLIST()
{
    fill(CommandSet::Main);
}

void DocumentToolBar::toggleButtons()
{
    setMode(m_mode + 1 > 2 ? 0 : m_mode + 1);
}

void DocumentToolBar::setMode(int mode)
{
    m_mode = mode;
    m_commands[0]->setText(QString::fromUtf8(Modes[mode].caption));
    m_commands[0]->setToolTip(QString::fromUtf8(Modes[mode].toolTip));
    fill(Modes[mode].set);
}

void DocumentToolBar::fill(CommandSet set)
{
    const CommandCatalogue commands = catalogue();
    if (!commands.canLoad())
        return;
    for (int i = 1; i <= CommandButtons; ++i) {
        m_commands[i]->setVisible(false);
        m_aliases[i].clear();
    }
    // Every command row takes a position, shown or not: a row the user may not use leaves
    // its button hidden, and nothing goes past the fifteenth position.
    int position = 0;
    LookupScope scope;
    commands.load(set, [&](const CommandEntry& entry) {
        if (++position > CommandButtons)
            return false;
        if (entry.listable) {
            // Fifteen long captions must still fit one row: long ones are shortened on the
            // button and shown whole in the tool tip.
            QString shown = entry.caption;
            shown.replace(QStringLiteral("&&"), QStringLiteral("&"));
            shown = m_commands[position]->fontMetrics().elidedText(shown, Qt::ElideRight, MaximumCaptionWidth);
            shown.replace(QLatin1Char('&'), QStringLiteral("&&"));
            m_commands[position]->setText(shown);
            m_commands[position]->setToolTip(entry.caption);
            m_aliases[position] = entry.alias;
            m_commands[position]->setVisible(true);
        }
        return true;
    }, false);
}

void DocumentToolBar::commandButtonClick(int index)
{
    if (index >= 1 && index <= CommandButtons)
        launch(m_aliases[index]);
}

void DocumentToolBar::utilityButtonClick(int index)
{
    switch (index) {
    case 0: runHelp(); break;
    case 1: runCalculator(); break;
    case 2: openImageFolder(); break;
    case 3: openSpecFolder(); break;
    case 4: {
        QString search = QStringLiteral("WINDOW:REPORTSEARCH");
        Q_EMIT Lunch(search);
        break;
    }
    default: break;
    }
}

void DocumentToolBar::ClientConfiguration(const QString& Program)
{
    const QString login = QStringLiteral(" /U=") + UserLoginName() + QStringLiteral(" /P=") + UserLoginPassword();
    const bool started = Program.isEmpty()
        ? runInFolder(SystemFolder(), SystemFolder() + QLatin1Char('\\') + ClientConfigurationProgram + login, QStringLiteral("System folder"))
        : start(Program + login);
    // A program that did not start has said so already.
    if (started)
        Services::messages().information(QStringLiteral("Client Configuration"),
            QStringLiteral("ท่านต้องเชื่อมคำสั่งในแต่ระบบจาก Application Center ของแต่ละเครื่อง"));
}

} // namespace qd8
