#include "navigation/NUVRibbon.h"

#include "database/LookupScope_p.h"
#include "database/ListService.h"
#include "database/SessionFunctions.h"
#include "database/SessionServices.h"
#include "foundation/DbError.h"
#include "foundation/Services.h"
#include "navigation/OemSettings.h"
#include "widgets/FormRegistry.h"
#include "widgets/Ribbon.h"
#include "widgets/SendKeys.h"

#include <QHash>
#include <QMenu>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>

namespace qd8 {

const QString NUVRibbon::SearchForm = QStringLiteral("DocumentSearch");
const QString NUVRibbon::MemoEntryForm = QStringLiteral("MemoEntry");
const QString NUVRibbon::MemoViewerForm = QStringLiteral("MemoViewer");
const QString NUVRibbon::MemoRemovalForm = QStringLiteral("MemoRemoval");

namespace {

// Catalogue tabs and groups.
const QString ModuleTab = QStringLiteral("MODULE");
const QString MainGroup = QStringLiteral("MAINCOMMAND");
const QString GroupTab = QStringLiteral("GROUP");
const QString FrequencyGroup = QStringLiteral("FREQUENCY");
const QString UserTab = QStringLiteral("USERCOMMAND");
const QString UserGroup = QStringLiteral("USERCOMMAND");

struct FixedButton {
    const char* key;
    const char* caption;  // "\n" breaks a two-word caption onto two lines
    QStyle::StandardPixmap icon;
};

struct FixedGroup {
    const char* key;
    const char* caption;
    QList<FixedButton> buttons;
};

struct FixedTab {
    const char* key;
    const char* caption;
    QList<FixedGroup> groups;
};

// The fixed content, tab by tab. "Premeire" and "Pesonnel" are the captions the suite
// has always shown.
const QList<FixedTab>& fixedTabs()
{
    static const QList<FixedTab> tabs = {
        {"STANDARD", "Standard", {
            {"CLIPBOARD", "Clipboard", {
                {"CUT", "Cut", QStyle::SP_DialogDiscardButton},
                {"COPY", "Copy", QStyle::SP_FileLinkIcon},
                {"PASTE", "Paste", QStyle::SP_DialogSaveButton}}},
            {"TOOLS", "Tools", {
                {"CALC", "Calc", QStyle::SP_DesktopIcon},
                {"SCANNER", "Scanner", QStyle::SP_DriveCDIcon},
                {"CAMERA", "Digital\nCamera", QStyle::SP_DriveDVDIcon}}},
            {"INTERNET", "Internet", {
                {"BROWSER", "Browser", QStyle::SP_DriveNetIcon},
                {"EMAIL", "Email", QStyle::SP_MessageBoxInformation},
                {"CALENDAR", "Calendar", QStyle::SP_FileDialogInfoView},
                {"UPLOAD", "Upload", QStyle::SP_ArrowUp}}}}},
        {"ORGANIZER", "Organizer", {
            {"ASSISTANT", "Assistant", {
                {"CENTERTODAY", "TODAY", QStyle::SP_ComputerIcon},
                {"CRMDAILYAPPOINTMENT", "Appointment", QStyle::SP_FileDialogListView}}},
            {"MESSAGE", "Message", {
                {"SEARCH", "Find\nDocument", QStyle::SP_FileDialogContentsView},
                {"POST", "Post", QStyle::SP_FileDialogNewFolder},
                {"MESSAGE", "View", QStyle::SP_FileDialogDetailedView},
                {"REMOVE", "Release", QStyle::SP_TrashIcon}}},
            {"FOLDER", "Folder", {
                {"IMAGEFOLDER", "Image", QStyle::SP_DirOpenIcon},
                {"SPECFOLDER", "Hard copy", QStyle::SP_DirIcon}}},
            {"PERSONNEL", "Pesonnel", {
                {"HRLEAVE", "Leave\nRequisition", QStyle::SP_DialogCancelButton},
                {"HROT", "Overtime", QStyle::SP_BrowserReload},
                {"HRCHANGEWORKPERIOD", "Time\nPeriod", QStyle::SP_MediaSeekForward}}},
            {"REQUEST", "Request", {
                {"PURPR", "Purchase\nRequisition", QStyle::SP_FileIcon}}},
            {"USER", "User", {
                {"CHANGEUSER", "Change\nUser", QStyle::SP_DialogResetButton}}}}},
        {"HELP", "Help", {
            {"THEME", "Theme", {
                {"THEME", "Theme", QStyle::SP_DesktopIcon}}},
            {"CONTENT", "Content", {
                {"CONTENT", "Manual", QStyle::SP_DialogHelpButton},
                {"VIDEO", "Training\nVideo", QStyle::SP_MediaPlay}}},
            {"FREESERVICE", "Free Web Services", {
                {"NEWS", "News", QStyle::SP_FileDialogInfoView},
                {"FAQ", "FAQ", QStyle::SP_MessageBoxQuestion},
                {"ELEARNING", "E-Learning", QStyle::SP_MediaPlay}}},
            {"DOWNLOAD", "Free Download", {
                {"DOWNLOAD", "Application\nUpdate", QStyle::SP_ArrowDown},
                {"WEBSEARCH", "Web\nSearch", QStyle::SP_FileDialogContentsView}}},
            {"ABOUT", "About Us", {
                {"ABOUT", "Program", QStyle::SP_MessageBoxInformation},
                {"WEBSITE", "Company", QStyle::SP_DriveNetIcon}}},
            {"CONTACT", "Contact Us", {
                {"MARKETING", "Sale", QStyle::SP_DialogApplyButton},
                {"CUSTOMERSERVICE", "Customer\nService", QStyle::SP_DialogYesButton}}},
            {"PREMIERE", "Premeire Services", {
                {"TECHNIC", "Telephone", QStyle::SP_ComputerIcon},
                {"REMOTE", "MSN &&\nRemote", QStyle::SP_DriveNetIcon},
                {"COMMENT", "Change\nRequest", QStyle::SP_FileDialogNewFolder}}}}},
    };
    return tabs;
}

// The OEM key of each web-page button.
const QHash<QString, QString>& webPageKeys()
{
    static const QHash<QString, QString> keys = {
        {QStringLiteral("MARKETING"), QStringLiteral("MARKETINGURL")},
        {QStringLiteral("NEWS"), QStringLiteral("NEWSURL")},
        {QStringLiteral("FAQ"), QStringLiteral("FAQURL")},
        {QStringLiteral("ELEARNING"), QStringLiteral("ELEARNINGURL")},
        {QStringLiteral("DOWNLOAD"), QStringLiteral("DOWNLOADURL")},
        {QStringLiteral("WEBSEARCH"), QStringLiteral("KBASEURL")},
        {QStringLiteral("COMMENT"), QStringLiteral("COMMENTURL")},
        {QStringLiteral("CUSTOMERSERVICE"), QStringLiteral("CONTACTURL")},
        {QStringLiteral("WEBSITE"), QStringLiteral("WEBSITE")},
    };
    return keys;
}

// A long command caption on a large button goes onto two lines, broken at the blank
// nearest its middle; a caption without blanks stays on one line.
QString twoLines(const QString& caption)
{
    constexpr int OneLine = 16;
    if (caption.size() <= OneLine)
        return caption;
    const int middle = int(caption.size()) / 2;
    int best = -1;
    for (int i = 0; i < caption.size(); ++i)
        if (caption[i] == QLatin1Char(' ') && (best < 0 || qAbs(i - middle) < qAbs(best - middle)))
            best = i;
    if (best < 0)
        return caption;
    return caption.left(best).trimmed() + QLatin1Char('\n') + caption.mid(best + 1).trimmed();
}

} // namespace

NUVRibbon::NUVRibbon(QWidget* parent)
    : ToolLauncher(parent)
    , m_ribbon(new Ribbon(this))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_ribbon);
    m_ribbon->addTab(ModuleTab, QStringLiteral("Module"));
    m_ribbon->addGroup(ModuleTab, MainGroup, QStringLiteral("Main Module Command"));
    m_ribbon->addTab(GroupTab, QStringLiteral("Group"));
    m_ribbon->addGroup(GroupTab, FrequencyGroup, QStringLiteral("Frequency Command"));
    m_ribbon->addTab(UserTab, QStringLiteral("User"));
    m_ribbon->addGroup(UserTab, UserGroup, QStringLiteral("User Command"));
    buildFixedTabs();
    m_ribbon->setCurrentTab(ModuleTab);

    m_userMenu = new QMenu(QStringLiteral("Config"), this);
    m_userMenu->addAction(QStringLiteral("Add"), this, &NUVRibbon::mnuAdd_click);
    m_userMenu->addAction(QStringLiteral("Remove"), this, &NUVRibbon::mnuDelete_click);
    connect(m_ribbon, &Ribbon::buttonClicked, this, &NUVRibbon::buttonClick);
    connect(m_ribbon, &Ribbon::groupContextMenuRequested, this, [this](const QString& tab, const QString&, const QPoint& pos) {
        if (tab == UserTab)
            m_userMenu->popup(pos);
    });
}

NUVRibbon::~NUVRibbon() = default;

void NUVRibbon::buildFixedTabs()
{
    for (const FixedTab& tab : fixedTabs()) {
        const QString tabKey = QString::fromUtf8(tab.key);
        m_ribbon->addTab(tabKey, QString::fromUtf8(tab.caption));
        for (const FixedGroup& group : tab.groups) {
            const QString groupKey = QString::fromUtf8(group.key);
            m_ribbon->addGroup(tabKey, groupKey, QString::fromUtf8(group.caption));
            for (const FixedButton& button : group.buttons) {
                // Some of the style's pictures exist only small; large buttons show 32 pixels.
                QPixmap picture = style()->standardIcon(button.icon).pixmap(32, 32);
                if (picture.width() < 32)
                    picture = picture.scaled(32, 32, Qt::KeepAspectRatio, Qt::SmoothTransformation);
                m_ribbon->addButton(tabKey, groupKey, QString::fromUtf8(button.key), QString::fromUtf8(button.caption), QIcon(picture));
            }
        }
    }
}

QColor NUVRibbon::BackColor() const
{
    return m_ribbon->backColor();
}

bool NUVRibbon::LoadBackground() const
{
    return m_ribbon->loadBackground();
}

void NUVRibbon::Refresh()
{
    deriveCommandCentre();
    if (!ConnectionString().isEmpty()) {
        try {
            m_ribbon->setTheme(int(std::nearbyint(SessionServices::sessionFunctions().GetUserSetting(
                UserID(), QStringLiteral("RibbonTheme"), ConnectionString()))));
        } catch (const DbError&) {
        }
    }
    // The shortcut bar's order: the user's own commands, the module's, then the main list.
    LookupScope scope;
    DOUSERLIST();
    DOMODULELIST();
    DOMAINLIST();
}

void NUVRibbon::DOMAINLIST()
{
    fill(CommandSet::Main, ModuleTab, MainGroup);
}

void NUVRibbon::DOMODULELIST()
{
    fill(CommandSet::Module, GroupTab, FrequencyGroup);
}

void NUVRibbon::DOUSERLIST()
{
    fill(CommandSet::User, UserTab, UserGroup);
}

void NUVRibbon::fill(CommandSet set, const QString& tabKey, const QString& groupKey)
{
    const CommandCatalogue commands = catalogue();
    if (!commands.canLoad())
        return;
    m_ribbon->clearGroup(tabKey, groupKey);
    commands.load(set, [&](const CommandEntry& entry) {
        if (!entry.listable)
            return true;
        m_images.add(entry.iconKey, entry.iconFile);
        m_images.add(entry.smallIconKey, entry.smallIconFile);
        QToolButton* button = m_ribbon->addButton(tabKey, groupKey, entry.alias, twoLines(entry.caption),
            m_images.icon(entry.iconKey), m_images.icon(entry.smallIconKey));
        if (button)
            button->setToolTip(entry.caption);
        return true;
    });
}

void NUVRibbon::buttonClick(const QString& key)
{
    const QString action = key.toUpper();
    if (webPageKeys().contains(action)) {
        openWebPage(webPageKeys().value(action));
    } else if (action == QLatin1String("THEME")) {
        pickTheme();
    } else if (action == QLatin1String("CALC")) {
        runCalculator();
    } else if (action == QLatin1String("CUT")) {
        SendKeys(QStringLiteral("^X"));
    } else if (action == QLatin1String("COPY")) {
        SendKeys(QStringLiteral("^C"));
    } else if (action == QLatin1String("PASTE")) {
        SendKeys(QStringLiteral("^V"));
    } else if (action == QLatin1String("SEARCH")) {
        showForm(SearchForm);
    } else if (action == QLatin1String("POST")) {
        showForm(MemoEntryForm);
    } else if (action == QLatin1String("MESSAGE")) {
        showForm(MemoViewerForm);
    } else if (action == QLatin1String("REMOVE")) {
        showForm(MemoRemovalForm);
    } else if (action == QLatin1String("BROWSER")) {
        openUrl(OemSettings(AppPath()).webPage(QStringLiteral("WEBSITE")));
    } else if (action == QLatin1String("EMAIL")) {
        const QString address = OemSettings(AppPath()).value(QStringLiteral("SUPPORTEMAIL"));
        openUrl(QStringLiteral("mailto:") + (address.isEmpty() ? OemSettings::builtInPage(QStringLiteral("SUPPORTEMAIL")) : address));
    } else if (action == QLatin1String("CALENDAR")) {
        start(QStringLiteral("Calendar.exe"));
    } else if (action == QLatin1String("IMAGEFOLDER")) {
        openImageFolder();
    } else if (action == QLatin1String("SPECFOLDER")) {
        openSpecFolder();
    } else if (action == QLatin1String("CONTENT") || action == QLatin1String("VIDEO")) {
        runHelp();
    } else if (action == QLatin1String("ABOUT")) {
        showAbout();
    } else if (!launch(key)) {
        notInThisBuild(key);
    }
}

void NUVRibbon::notInThisBuild(const QString& key)
{
    const QToolButton* button = m_ribbon->button(key);
    const QString caption = button ? button->text().replace(QLatin1Char('\n'), QLatin1Char(' ')).replace(QStringLiteral("&&"), QStringLiteral("&")) : key;
    Services::messages().information(OEMShortName(),
        bilingual("%1 (%2): รุ่นนี้ยังไม่มีฟอร์มของคำสั่งนี้", "%1 (%2): this build has no form for it yet").arg(caption, key));
}

void NUVRibbon::openUrl(const QString& url)
{
    if (!Services::shell().openUrl(url))
        Services::messages().information(OEMShortName(),
            bilingual("ไม่มีโปรแกรมในเครื่องนี้ที่เปิด %1 ได้", "No program on this computer opens %1").arg(url));
}

void NUVRibbon::openWebPage(const QString& key)
{
    openUrl(OemSettings(AppPath()).webPage(key));
}

void NUVRibbon::pickTheme()
{
    const int theme = Services::picker().choose(QStringLiteral("Theme"), Ribbon::themeNames(), m_ribbon->theme());
    if (theme < 0)
        return;
    if (!ConnectionString().isEmpty()) {
        try {
            DbSessionFunctions::storeUserSetting(UserID(), QStringLiteral("RibbonTheme"), QString::number(theme), ConnectionString());
        } catch (const DbError& error) {
            Services::messages().critical(QStringLiteral("Theme"), error.report(LanguageID()));
        }
    }
    m_ribbon->setTheme(theme);
    Q_EMIT ThemeChange(theme, m_ribbon);
}

void NUVRibbon::showForm(const QString& name)
{
    if (!FormRegistry::showModal(name, window()))
        Services::messages().information(OEMShortName(),
            bilingual("ฟอร์ม \"%1\" ยังไม่มีในรุ่นนี้", "The form \"%1\" is not in this build.").arg(name));
}

void NUVRibbon::showAbout()
{
    const OemSettings oem(AppPath());
    const QString about = oem.value(QStringLiteral("ABOUT"));
    Services::messages().information(oem.shortName(), about.isEmpty() ? QStringLiteral("QD8 Business Suite") : about);
}

void NUVRibbon::mnuAdd_click()
{
    if (catalogue().addUserCommand())
        DOUSERLIST();
}

void NUVRibbon::mnuDelete_click()
{
    QString picked;
    try {
        // The list shows the commands of user 0, the template user, whoever is logged in.
        picked = SessionServices::listService().PickFromList(QStringLiteral("เลือกคำสั่งที่ต้องการลบ"), QStringLiteral("TUscTCmdID"),
            QStringLiteral("TUscTCmdID,TCmdName"), QStringLiteral("ID,โมดูล,คำสั่ง"), QStringLiteral("0,6860"), QStringLiteral("0,0"),
            QStringLiteral("(SELECT QD8TUserCommand.*, QD8TCommand.* FROM QD8TUserCommand LEFT JOIN QD8TCommand ON QD8TUserCommand.TUsCTCmdID = QD8TCommand.TCmdID WHERE")
                + QStringLiteral(" (((QD8TUserCommand.TUsCTUsrID)=0)))  A ORDER BY TCmdName"),
            ConnectionString(), 0, 0, 0, 1, 0, 0);
    } catch (const DbError&) {
        return;
    }
    if (!picked.isEmpty() && catalogue().removeUserCommand(picked))
        DOUSERLIST();
}

} // namespace qd8
