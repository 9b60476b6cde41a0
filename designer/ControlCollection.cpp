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
#include <QMetaProperty>
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

struct Class {
    const QMetaObject* meta;
    QWidget* (*create)(QWidget* parent);
};

template <class W>
Class of()
{
    return {&W::staticMetaObject, [](QWidget* parent) -> QWidget* { return new W(parent); }};
}

struct Control {
    Class type;
    const Layer& layer;
    QSize size;
    const char* toolTip;
    const char* whatsThis;
    // Blank until a session fills it: named over its middle at design time.
    bool blank = false;
    const char* header = nullptr;  // when the class shares another class's header
};

// Tool tips and "What's this" texts are for the form's developer, so English only.
const Control Controls[] = {
    {of<qd8::ShortCutBar>(), Navigation, {220, 360}, "Shortcut bar: the user's and the module's commands",
        "Lists the commands of the user, of the module (CommandGroup) and of the main list, each with its icon from "
        "IconPath, and raises Lunch with the alias of the command opened. Design time: ConnectionString, CommandGroup, IconPath.", true},
    {of<qd8::DocumentToolBar>(), Navigation, {600, 40}, "Document tool bar: the module's commands as buttons",
        "The commands of the module as tool buttons with the help and report-search buttons; raises Lunch. "
        "Design time: TodayPage, AppPath, SystemFolder."},
    {of<qd8::NUVRibbon>(), Navigation, {800, 130}, "Ribbon: the modules and their commands",
        "A ribbon whose tabs are the modules and whose buttons are the commands the user may run, with the help menu "
        "and themes; raises Lunch and ThemeChange. Design time: TodayPage, AppPath, SystemFolder."},
    {of<qd8::NUVDiagram>(), Navigation, {640, 420}, "Module diagram: the module's commands as a drawing",
        "Draws the commands of a module as tiles joined by arrows; opening a tile raises Lunch. Filled by "
        "Refresh(LanguageID, AppConnectionString, CustomConnectionString).", true},
    {of<qd8::NUVDiagram2>(), Navigation, {640, 420}, "Module diagram, second layout",
        "The module diagram in its second layout; opening a tile raises Lunch.", true},
    {of<qd8::NUVDiagramIndex>(), Navigation, {640, 420}, "Diagram index: every module as a tile",
        "Shows every module the user may open as a tile; opening one asks for that module's diagram.", true},
    {of<qd8::NUVMainMenu>(), Navigation, {800, 520}, "Production main menu: large command buttons and a keypad",
        "The user's commands as large touch buttons in pages of Cols × Rows with a keypad for quantities and numbers; "
        "set up by SetFirst(MenuTitle, SubTitle, Cols, Rows), raises Lunch."},

    {of<qd8::QuickGrid>(), Editors, {640, 420}, "Quick form editor: master data in a grid",
        "Edits the rows of a quick form (QD8TQuickForm and its fields) with pick lists, validation and one "
        "transaction per save. Design time: ConnectionString, DataConnectionString, QuickGroup.", true},
    {of<qd8::CustomData>(), Editors, {640, 420}, "Custom code tables",
        "Edits the company's own code lists as a quick form. Design time: ConnectionString, DataConnectionString, QuickGroup.", true},
    {of<qd8::CustomOption>(), Editors, {560, 400}, "Company options",
        "Edits the options of an option group for the whole company. Design time: ConnectionString, "
        "DataConnectionString, OptionGroup.", true},
    {of<qd8::BranchOption>(), Editors, {560, 400}, "Branch options",
        "Edits the options of an option group for one branch. Design time: ConnectionString, DataConnectionString, OptionGroup.", true},
    {of<qd8::HostOption>(), Editors, {560, 400}, "Workstation options",
        "Edits the options of an option group for one workstation. Design time: ConnectionString, "
        "DataConnectionString, OptionGroup.", true},
    {of<qd8::UserOption>(), Editors, {560, 400}, "User options",
        "Edits the options of an option group for one user. Design time: ConnectionString, DataConnectionString, OptionGroup.", true},

    {of<qd8::DucumentList>(), Documents, {720, 460}, "Document list with status and date filters",
        "Lists the documents of a command (its QD8TFormDocList definition) with status filters, legends and the "
        "detail form; raises ChangeCaption, DeleteAction and CloseAction. Design time: CommandGroup.", true},
    {of<qd8::MasterList>(), Documents, {720, 460}, "Master record list",
        "Lists the master records of a command with search and filters and opens their form. Design time: CommandGroup.", true},
    {of<qd8::JobSelector>(), Documents, {420, 120}, "Job, MPS and production order picker",
        "Picks a job, an MPS line or a production order step for a document; filled by SetFirst/SetFirst2."},
    {of<qd8::DocumentJob>(), Documents, {360, 240}, "Job details", "The details of a job order.",
        true, "documents/DocumentDetails.h"},
    {of<qd8::DocumentPR>(), Documents, {360, 240}, "Purchase request details",
        "The details of a purchase request.", true, "documents/DocumentDetails.h"},
    {of<qd8::DocumentStatus>(), Documents, {480, 200}, "Document status history",
        "The history of a document's status changes.", true, "documents/DocumentDetails.h"},

    {of<qd8::GLControl>(), Accounting, {760, 420}, "General-ledger voucher",
        "Enters the debit and credit lines of a voucher, posted from the form's posting format; F9 balances. "
        "Set up by SetFirst with the session objects and the format group."},
    {of<qd8::CreditLimit>(), Accounting, {420, 220}, "Customer credit-limit check",
        "Shows a customer's credit limit, what is owed and the cheques not yet cleared, and says whether a sale fits."},
    {of<qd8::PointControl>(), Accounting, {420, 200}, "Loyalty points",
        "Shows a customer's points and takes the points used on a document; set up by SetFirst."},

    {of<qd8::ReportFilter>(), Reports, {560, 420}, "Report criteria and favourites",
        "Builds a report's criteria screen from its filter definition, keeps the user's favourites and raises "
        "PreviewAction and CloseAction; set up by SetFirst with the report group.", true},

    {of<qd8::HardCopyScan>(), Attachments, {520, 160}, "Scanned paper attachments",
        "Scans, lists and opens the paper copies of a document kept in the manual folder."},
    {of<qd8::ClientCapture>(), Attachments, {420, 160}, "Screen, window and camera pictures",
        "Takes a picture of the screen, a window or a camera for a document and keeps it in the attachment folder."},

    {of<qd8::WebBrowser>(), Browser, {640, 420}, "Web page viewer",
        "Shows web pages inside the program on Qt WebEngine, or hands them to the desktop's browser where the "
        "engine cannot run. Links QD8Designer2::Browser.", true},

    {of<qd8::QD8ControlCenter>(), Pickers, {200, 60}, "Date, date-and-time and month pickers",
        "The invisible service control through which a form asks for a date, a date and time or a month.", true},

    {of<qd8::DataView>(), Widgets, {560, 320}, "Read-only list of a query",
        "A read-only grid of a SELECT that fetches rows as they are shown, with add, edit, view and delete events.", true},
    {of<qd8::GridEditor>(), Widgets, {560, 320}, "Editing grid with typed columns",
        "An editing grid with text, number, label-list, yes/no, running-number and date columns and per-row change marks.", true},
    {of<qd8::Ribbon>(), Widgets, {800, 120}, "Ribbon of tabs, groups and buttons",
        "The plain ribbon widget: tabs, groups and large or small buttons, with themes."},
    {of<qd8::DateEdit>(), Widgets, {120, 24}, "Date field",
        "A date typed or picked (F2), shown with the Buddhist-era year in Thai."},
    {of<qd8::DateTimeView>(), Widgets, {260, 240}, "Date and time picker", "A calendar with a time."},
    {of<qd8::MonthYearView>(), Widgets, {240, 200}, "Month picker", "Picks a month of a year."},
    {of<qd8::MonthCalendar>(), Widgets, {240, 200}, "One-month calendar", "Picks a day of a month."},
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
        , m_name(QLatin1String(control.type.meta->className()))
        , m_shortName(m_name.mid(m_name.lastIndexOf(QLatin1Char(':')) + 1))
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
        return QLatin1String(m_control.layer.folder) + QLatin1Char('/') + m_shortName + QStringLiteral(".h");
    }
    QIcon icon() const override
    {
        return QIcon(QStringLiteral(":/qd8designer/icons/%1.svg").arg(QLatin1String(m_control.layer.folder)));
    }
    bool isContainer() const override { return false; }
    QWidget* createWidget(QWidget* parent) override
    {
        QWidget* widget = m_control.type.create(parent);
        if (m_control.blank)
            qd8::designer::showDesignPreview(widget, m_shortName, toolTip());
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
            " <customwidgets><customwidget><class>%2</class><propertyspecifications>\n%6"
            " </propertyspecifications></customwidget></customwidgets>\n"
            "</ui>\n")
            .arg(m_shortName, m_name, proposedObjectName(m_shortName))
            .arg(m_control.size.width())
            .arg(m_control.size.height())
            .arg(stringSpecifications());
    }

private:
    // The controls choose their language from the session, never through Qt's translations:
    // their strings (connection strings, folders, groups, captions) are kept untranslated.
    QString stringSpecifications() const
    {
        QString specs;
        for (const QMetaObject* meta = m_control.type.meta; QByteArray(meta->className()).startsWith("qd8::");
             meta = meta->superClass()) {
            for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
                const QMetaProperty property = meta->property(i);
                if (property.metaType().id() == QMetaType::QString && property.isWritable())
                    specs += QStringLiteral("  <stringpropertyspecification name=\"%1\" notr=\"true\" type=\"singleline\"/>\n")
                                 .arg(QLatin1String(property.name()));
            }
        }
        return specs;
    }

    const Control& m_control;
    const QString m_name;
    const QString m_shortName;
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
