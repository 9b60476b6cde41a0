#include "support/ScriptedServices.h"

#include "foundation/PropertyBag.h"
#include "foundation/SqlTrace.h"
#include "widgets/HostedControl.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

#include <QApplication>
#include <QDomDocument>
#include <QFileInfo>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

struct Control {
    const char* name;
    // What Designer shows and saves for it.
    QStringList designTime;
    // Of those, what the property bag writes and reads back.
    QStringList bag;
};

void PrintTo(const Control& control, std::ostream* os)
{
    *os << control.name;
}

const QStringList Connections{"ConnectionString", "DataConnectionString"};
const QStringList Launcher{"TodayPage", "AppPath", "SystemFolder"};
const QStringList QuickForm = Connections + QStringList{"QuickGroup"};
const QStringList Options = Connections + QStringList{"OptionGroup"};

const Control Controls[] = {
    {"ShortCutBar", {"ConnectionString", "CommandGroup", "IconPath"}, {"ConnectionString", "CommandGroup"}},
    {"DocumentToolBar", Launcher, Launcher},
    {"NUVRibbon", Launcher, Launcher},
    {"NUVDiagram", {"ConnectionString"}, {}},
    {"NUVDiagram2", {"ConnectionString"}, {}},
    {"NUVDiagramIndex", {"ConnectionString"}, {}},
    {"NUVMainMenu", {"ConnectionString"}, {}},
    {"QuickGrid", QuickForm, QuickForm},
    {"CustomData", QuickForm, QuickForm},
    {"CustomOption", Options, Options},
    {"BranchOption", Options, Options},
    {"HostOption", Options, Options},
    {"UserOption", Options, Options},
    {"DucumentList", {"CommandGroup", "REPORTGROUP"}, {}},
    {"MasterList", {"CommandGroup", "REPORTGROUP"}, {}},
    {"JobSelector", {"ConnectionString"}, {}},
    {"DocumentJob", {}, {}},
    {"DocumentPR", {}, {}},
    {"DocumentStatus", {}, {}},
    {"GLControl", {"FormatGroupAlias"}, {}},
    {"CreditLimit", {}, {}},
    {"PointControl", {"ConnectionString"}, {}},
    {"ReportFilter", {"RLID"}, {}},
    {"HardCopyScan", {"DefaultSuffix"}, {}},
    {"ClientCapture", {"SaveFormat"}, {}},
    {"WebBrowser", {}, {}},
    {"QD8ControlCenter", {}, {}},
    {"DataView", {}, {}},
    {"GridEditor", {}, {}},
    {"Ribbon", {}, {}},
    {"DateEdit", {}, {}},
    {"DateTimeView", {}, {}},
    {"MonthYearView", {}, {}},
    {"MonthCalendar", {}, {}},
};

// The session a host hands over at run time: never edited in Designer nor kept in a form.
const char* const SessionOnly[] = {"AppConnectionString", "UserID", "UserLoginName", "UserLoginPassword", "hWnd"};

QHash<QString, QDesignerCustomWidgetInterface*> loadPlugin()
{
    static QPluginLoader loader(QStringLiteral(QD8_DESIGNER_PLUGIN));
    QHash<QString, QDesignerCustomWidgetInterface*> byName;
    if (auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance()))
        for (QDesignerCustomWidgetInterface* widget : collection->customWidgets())
            byName.insert(widget->name(), widget);
    return byName;
}

QString qualified(const char* name)
{
    return QStringLiteral("qd8::") + QLatin1String(name);
}

TEST(DesignerPlugin, ListsEveryControlOnce)
{
    QSet<QString> expected;
    for (const Control& control : Controls)
        expected.insert(qualified(control.name));
    const QList<QString> listed = loadPlugin().keys();
    EXPECT_EQ(QSet<QString>(listed.begin(), listed.end()), expected);
}

class DesignerControl : public testing::TestWithParam<Control> {};

TEST_P(DesignerControl, PlacedWithoutDatabaseOrDialog)
{
    const Control& c = GetParam();
    QDesignerCustomWidgetInterface* plugin = loadPlugin().value(qualified(c.name));
    ASSERT_TRUE(plugin);
    EXPECT_TRUE(plugin->group().startsWith(QLatin1String("QD8Designer2 "))) << plugin->group().toStdString();
    EXPECT_FALSE(plugin->toolTip().isEmpty());
    EXPECT_FALSE(plugin->whatsThis().isEmpty());
    EXPECT_FALSE(plugin->icon().isNull());
    // The header as installed below include/QD8Designer2/ is the source tree's.
    const QString header = plugin->includeFile();
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QD8_SOURCE_DIR "/src/") + header) && !header.endsWith(QLatin1String("_p.h")))
        << header.toStdString();
    QDomDocument dom;
    ASSERT_TRUE(dom.setContent(plugin->domXml()));
    const QDomElement widgetXml = dom.documentElement().firstChildElement(QStringLiteral("widget"));
    EXPECT_EQ(widgetXml.attribute(QStringLiteral("class")), plugin->name());

    // A connection string typed in Designer names a file that must not come to be.
    QTemporaryDir dir;
    const QString bogusFile = dir.filePath(QStringLiteral("design.dat"));
    const QString bogus = QStringLiteral("Driver=SQLite;Create=yes;Data Source=") + bogusFile;
    SqlTrace::Recorder trace;
    QStringList modals;
    QTimer modalWatch;
    QObject::connect(&modalWatch, &QTimer::timeout, [&modals] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            modals << modal->metaObject()->className();
            modal->close();
        }
    });
    modalWatch.start(20);

    QWidget form;
    form.resize(900, 600);
    QWidget* widget = plugin->createWidget(&form);
    ASSERT_TRUE(widget);
    EXPECT_EQ(QString::fromLatin1(widget->metaObject()->className()), plugin->name());
    const QDomElement rect = widgetXml.firstChildElement(QStringLiteral("property")).firstChildElement(QStringLiteral("rect"));
    widget->resize(rect.firstChildElement(QStringLiteral("width")).text().toInt(), rect.firstChildElement(QStringLiteral("height")).text().toInt());
    EXPECT_FALSE(widget->size().isEmpty());
    auto* hosted = qobject_cast<HostedControl*>(widget);
    const QMetaObject* meta = widget->metaObject();
    for (const QString& name : c.designTime) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1().constData()));
        ASSERT_TRUE(property.isValid()) << name.toStdString();
        EXPECT_TRUE(property.isDesignable() && property.isStored() && property.isWritable()) << name.toStdString();
        QVariant value = name.contains(QLatin1String("Connection")) ? bogus : name.toUpper();
        if (property.metaType().id() == QMetaType::Int)
            value = 1;
        ASSERT_TRUE(widget->setProperty(name.toLatin1().constData(), value));
        EXPECT_EQ(widget->property(name.toLatin1().constData()), value) << name.toStdString();
        // Kept as typed: a connection string or a group is not a text for Qt's translators.
        if (property.metaType().id() == QMetaType::QString)
            EXPECT_TRUE(plugin->domXml().contains(QStringLiteral("name=\"%1\" notr=\"true\"").arg(name))) << name.toStdString();
    }
    if (hosted) {
        for (const char* name : SessionOnly)
            EXPECT_FALSE(meta->property(meta->indexOfProperty(name)).isDesignable()) << name;
        PropertyBag saved;
        hosted->writeProperties(saved);
        std::unique_ptr<QWidget> again(plugin->createWidget(nullptr));
        qobject_cast<HostedControl*>(again.get())->readProperties(saved);
        for (const QString& key : c.bag) {
            EXPECT_EQ(saved.read(key), widget->property(key.toLatin1().constData()).toString()) << key.toStdString();
            EXPECT_EQ(again->property(key.toLatin1().constData()), widget->property(key.toLatin1().constData())) << key.toStdString();
        }
    }
    // Designer reads every property it shows and writes back those a form keeps.
    for (int i = 0; i < meta->propertyCount(); ++i) {
        const QMetaProperty property = meta->property(i);
        if (property.isDesignable() && property.isWritable() && property.isStored())
            property.write(widget, property.read(widget));
    }
    form.show();
    QTest::qWait(150);
    widget->resize(widget->size() + QSize(40, 30));  // Designer's resize handles
    QTest::qWait(50);

    EXPECT_TRUE(trace.entries().isEmpty()) << trace.composed().join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(QFileInfo::exists(bogusFile));
    EXPECT_TRUE(modals.isEmpty()) << modals.join(QLatin1Char(' ')).toStdString();
    EXPECT_TRUE(test::scriptedMessages().shown.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Controls, DesignerControl, testing::ValuesIn(Controls),
    [](const testing::TestParamInfo<Control>& info) { return std::string(info.param.name); });

} // namespace
