// The Qt Designer plugin: every control a host places on a form, grouped by layer.

#include "accounting/CreditLimit.h"
#include "accounting/GLControl.h"
#include "accounting/PointControl.h"
#include "attachments/ClientCapture.h"
#include "attachments/HardCopyScan.h"
#include "browser/WebBrowser.h"
#include "documents/DocumentDetails.h"
#include "documents/DucumentList.h"
#include "documents/JobSelector.h"
#include "documents/MasterList.h"
#include "editors/BranchOption.h"
#include "editors/CustomData.h"
#include "editors/CustomOption.h"
#include "editors/HostOption.h"
#include "editors/QuickGrid.h"
#include "editors/UserOption.h"
#include "navigation/DocumentToolBar.h"
#include "navigation/NUVDiagram.h"
#include "navigation/NUVDiagram2.h"
#include "navigation/NUVDiagramIndex.h"
#include "navigation/NUVMainMenu.h"
#include "navigation/NUVRibbon.h"
#include "navigation/ShortCutBar.h"
#include "pickers/QD8ControlCenter.h"
#include "reports/ReportFilter.h"
#include "widgets/DataView.h"
#include "widgets/DateEdit.h"
#include "widgets/DateTimeView.h"
#include "widgets/GridEditor.h"
#include "widgets/MonthCalendar.h"
#include "widgets/MonthYearView.h"
#include "widgets/Ribbon.h"

#include "DesignPreview.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QIcon>
#include <QSize>

namespace {

struct Layer {
    const char* folder;  // below include/QD8Designer2/, and the icon's name
    const char* group;
};

const Layer Navigation{"navigation", "QD8Designer2 Navigation"};
const Layer Editors{"editors", "QD8Designer2 Editors"};
const Layer Documents{"documents", "QD8Designer2 Documents"};
const Layer Accounting{"accounting", "QD8Designer2 Accounting"};
const Layer Reports{"reports", "QD8Designer2 Reports"};
const Layer Attachments{"attachments", "QD8Designer2 Attachments"};
const Layer Browser{"browser", "QD8Designer2 Browser"};
const Layer Pickers{"pickers", "QD8Designer2 Pickers"};
const Layer Widgets{"widgets", "QD8Designer2 Widgets"};

struct Control {
    const char* name;  // the class without its namespace
    const Layer& layer;
    QSize size;
    QWidget* (*create)(QWidget* parent);
    const char* toolTip;
    const char* whatsThis;
    // Blank until a session fills it: named over its middle at design time.
    bool blank = false;
    const char* header = nullptr;  // when the class shares another class's header
};

template <class W>
QWidget* make(QWidget* parent)
{
    return new W(parent);
}

// Tool tips and "What's this" texts are for the form's developer, so English only.
const Control Controls[] = {
    {"ShortCutBar", Navigation, {220, 360}, make<qd8::ShortCutBar>, "Shortcut bar: the user's and the module's commands",
        "Lists the commands of the user, of the module (CommandGroup) and of the main list, each with its icon from "
        "IconPath, and raises Lunch with the alias of the command opened. Design time: ConnectionString, CommandGroup, IconPath.", true},
    {"DocumentToolBar", Navigation, {600, 40}, make<qd8::DocumentToolBar>, "Document tool bar: the module's commands as buttons",
        "The commands of the module as tool buttons with the help and report-search buttons; raises Lunch. "
        "Design time: TodayPage, AppPath, SystemFolder."},
    {"NUVRibbon", Navigation, {800, 130}, make<qd8::NUVRibbon>, "Ribbon: the modules and their commands",
        "A ribbon whose tabs are the modules and whose buttons are the commands the user may run, with the help menu "
        "and themes; raises Lunch and ThemeChange. Design time: TodayPage, AppPath, SystemFolder."},
    {"NUVDiagram", Navigation, {640, 420}, make<qd8::NUVDiagram>, "Module diagram: the module's commands as a drawing",
        "Draws the commands of a module as tiles joined by arrows; opening a tile raises Lunch. Filled by "
        "Refresh(LanguageID, AppConnectionString, CustomConnectionString).", true},
    {"NUVDiagram2", Navigation, {640, 420}, make<qd8::NUVDiagram2>, "Module diagram, second layout",
        "The module diagram in its second layout; opening a tile raises Lunch.", true},
    {"NUVDiagramIndex", Navigation, {640, 420}, make<qd8::NUVDiagramIndex>, "Diagram index: every module as a tile",
        "Shows every module the user may open as a tile; opening one asks for that module's diagram.", true},
    {"NUVMainMenu", Navigation, {800, 520}, make<qd8::NUVMainMenu>, "Production main menu: large command buttons and a keypad",
        "The user's commands as large touch buttons in pages of Cols × Rows with a keypad for quantities and numbers; "
        "set up by SetFirst(MenuTitle, SubTitle, Cols, Rows), raises Lunch."},

    {"QuickGrid", Editors, {640, 420}, make<qd8::QuickGrid>, "Quick form editor: master data in a grid",
        "Edits the rows of a quick form (QD8TQuickForm and its fields) with pick lists, validation and one "
        "transaction per save. Design time: ConnectionString, DataConnectionString, QuickGroup.", true},
    {"CustomData", Editors, {640, 420}, make<qd8::CustomData>, "Custom code tables",
        "Edits the company's own code lists as a quick form. Design time: ConnectionString, DataConnectionString, QuickGroup.", true},
    {"CustomOption", Editors, {560, 400}, make<qd8::CustomOption>, "Company options",
        "Edits the options of an option group for the whole company. Design time: ConnectionString, "
        "DataConnectionString, OptionGroup.", true},
    {"BranchOption", Editors, {560, 400}, make<qd8::BranchOption>, "Branch options",
        "Edits the options of an option group for one branch. Design time: ConnectionString, DataConnectionString, OptionGroup.", true},
    {"HostOption", Editors, {560, 400}, make<qd8::HostOption>, "Workstation options",
        "Edits the options of an option group for one workstation. Design time: ConnectionString, "
        "DataConnectionString, OptionGroup.", true},
    {"UserOption", Editors, {560, 400}, make<qd8::UserOption>, "User options",
        "Edits the options of an option group for one user. Design time: ConnectionString, DataConnectionString, OptionGroup.", true},

    {"DucumentList", Documents, {720, 460}, make<qd8::DucumentList>, "Document list with status and date filters",
        "Lists the documents of a command (its QD8TFormDocList definition) with status filters, legends and the "
        "detail form; raises ChangeCaption, DeleteAction and CloseAction. Design time: CommandGroup.", true},
    {"MasterList", Documents, {720, 460}, make<qd8::MasterList>, "Master record list",
        "Lists the master records of a command with search and filters and opens their form. Design time: CommandGroup.", true},
    {"JobSelector", Documents, {420, 120}, make<qd8::JobSelector>, "Job, MPS and production order picker",
        "Picks a job, an MPS line or a production order step for a document; filled by SetFirst/SetFirst2."},
    {"DocumentJob", Documents, {360, 240}, make<qd8::DocumentJob>, "Job details", "The details of a job order.",
        true, "documents/DocumentDetails.h"},
    {"DocumentPR", Documents, {360, 240}, make<qd8::DocumentPR>, "Purchase request details",
        "The details of a purchase request.", true, "documents/DocumentDetails.h"},
    {"DocumentStatus", Documents, {480, 200}, make<qd8::DocumentStatus>, "Document status history",
        "The history of a document's status changes.", true, "documents/DocumentDetails.h"},

    {"GLControl", Accounting, {760, 420}, make<qd8::GLControl>, "General-ledger voucher",
        "Enters the debit and credit lines of a voucher, posted from the form's posting format; F9 balances. "
        "Set up by SetFirst with the session objects and the format group."},
    {"CreditLimit", Accounting, {420, 220}, make<qd8::CreditLimit>, "Customer credit-limit check",
        "Shows a customer's credit limit, what is owed and the cheques not yet cleared, and says whether a sale fits."},
    {"PointControl", Accounting, {420, 200}, make<qd8::PointControl>, "Loyalty points",
        "Shows a customer's points and takes the points used on a document; set up by SetFirst."},

    {"ReportFilter", Reports, {560, 420}, make<qd8::ReportFilter>, "Report criteria and favourites",
        "Builds a report's criteria screen from its filter definition, keeps the user's favourites and raises "
        "PreviewAction and CloseAction; set up by SetFirst with the report group.", true},

    {"HardCopyScan", Attachments, {520, 160}, make<qd8::HardCopyScan>, "Scanned paper attachments",
        "Scans, lists and opens the paper copies of a document kept in the manual folder."},
    {"ClientCapture", Attachments, {420, 160}, make<qd8::ClientCapture>, "Screen, window and camera pictures",
        "Takes a picture of the screen, a window or a camera for a document and keeps it in the attachment folder."},

    {"WebBrowser", Browser, {640, 420}, make<qd8::WebBrowser>, "Web page viewer",
        "Shows web pages inside the program on Qt WebEngine, or hands them to the desktop's browser where the "
        "engine cannot run. Links QD8Designer2::Browser.", true},

    {"QD8ControlCenter", Pickers, {200, 60}, make<qd8::QD8ControlCenter>, "Date, date-and-time and month pickers",
        "The invisible service control through which a form asks for a date, a date and time or a month.", true},

    {"DataView", Widgets, {560, 320}, make<qd8::DataView>, "Read-only list of a query",
        "A read-only grid of a SELECT that fetches rows as they are shown, with add, edit, view and delete events.", true},
    {"GridEditor", Widgets, {560, 320}, make<qd8::GridEditor>, "Editing grid with typed columns",
        "An editing grid with text, number, label-list, yes/no, running-number and date columns and per-row change marks.", true},
    {"Ribbon", Widgets, {800, 120}, make<qd8::Ribbon>, "Ribbon of tabs, groups and buttons",
        "The plain ribbon widget: tabs, groups and large or small buttons, with themes."},
    {"DateEdit", Widgets, {120, 24}, make<qd8::DateEdit>, "Date field",
        "A date typed or picked (F2), shown with the Buddhist-era year in Thai."},
    {"DateTimeView", Widgets, {260, 240}, make<qd8::DateTimeView>, "Date and time picker", "A calendar with a time."},
    {"MonthYearView", Widgets, {240, 200}, make<qd8::MonthYearView>, "Month picker", "Picks a month of a year."},
    {"MonthCalendar", Widgets, {240, 200}, make<qd8::MonthCalendar>, "One-month calendar", "Picks a day of a month."},
};

// The object name Designer proposes: "QuickGrid" → "quickGrid", "NUVRibbon" → "nuvRibbon".
QString proposedObjectName(const QString& name)
{
    int upper = 0;
    while (upper < name.size() && !name.at(upper).isLower())
        ++upper;
    const int lowered = upper > 1 && upper < name.size() ? upper - 1 : upper;
    return name.left(lowered).toLower() + name.mid(lowered);
}

class ControlPlugin : public QObject, public QDesignerCustomWidgetInterface {
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    ControlPlugin(const Control& control, QObject* parent)
        : QObject(parent)
        , m_control(control)
        , m_name(QStringLiteral("qd8::") + QLatin1String(control.name))
    {
    }

    QString name() const override { return m_name; }
    QString group() const override { return QLatin1String(m_control.layer.group); }
    QString toolTip() const override { return QLatin1String(m_control.toolTip); }
    QString whatsThis() const override { return QLatin1String(m_control.whatsThis); }
    QString includeFile() const override
    {
        if (m_control.header)
            return QLatin1String(m_control.header);
        return QLatin1String(m_control.layer.folder) + QLatin1Char('/') + QLatin1String(m_control.name) + QStringLiteral(".h");
    }
    QIcon icon() const override
    {
        return QIcon(QStringLiteral(":/qd8designer/icons/%1.svg").arg(QLatin1String(m_control.layer.folder)));
    }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override
    {
        QWidget* widget = m_control.create(parent);
        if (m_control.blank)
            qd8::designer::showDesignPreview(widget, QLatin1String(m_control.name), toolTip());
        return widget;
    }
    QString domXml() const override
    {
        return QStringLiteral(
            "<ui language=\"c++\" displayname=\"%1\">\n"
            " <widget class=\"%2\" name=\"%3\">\n"
            "  <property name=\"geometry\">\n"
            "   <rect><x>0</x><y>0</y><width>%4</width><height>%5</height></rect>\n"
            "  </property>\n"
            " </widget>\n"
            "</ui>\n")
            .arg(QLatin1String(m_control.name), m_name, proposedObjectName(QLatin1String(m_control.name)))
            .arg(m_control.size.width())
            .arg(m_control.size.height());
    }

private:
    const Control& m_control;
    const QString m_name;
};

class ControlCollection : public QObject, public QDesignerCustomWidgetCollectionInterface {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit ControlCollection(QObject* parent = nullptr)
        : QObject(parent)
    {
        for (const Control& control : Controls)
            m_plugins.append(new ControlPlugin(control, this));
    }

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override { return m_plugins; }

private:
    QList<QDesignerCustomWidgetInterface*> m_plugins;
};

} // namespace

#include "ControlCollection.moc"
