#include "support/ScriptedServices.h"

#include "foundation/SqlTrace.h"
#include "widgets/HostedControl.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QApplication>
#include <QFileInfo>
#include <QMetaProperty>
#include <QPluginLoader>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

using namespace qd8;

namespace {

// Every control a host places on a form.
const char* const Controls[] = {"ShortCutBar", "DocumentToolBar", "NUVRibbon", "NUVDiagram", "NUVDiagram2",
    "NUVDiagramIndex", "NUVMainMenu", "QuickGrid", "CustomData", "CustomOption", "BranchOption", "HostOption",
    "UserOption", "DucumentList", "MasterList", "JobSelector", "DocumentJob", "DocumentPR", "DocumentStatus",
    "GLControl", "CreditLimit", "PointControl", "ReportFilter", "HardCopyScan", "ClientCapture", "WebBrowser",
    "QD8ControlCenter", "DataView", "GridEditor", "Ribbon", "DateEdit", "DateTimeView", "MonthYearView", "MonthCalendar"};

// Designer shows and a .ui form keeps what a control writes to its property bag, and these.
const QHash<QString, QStringList> Settings{{"DucumentList", {"CommandGroup", "REPORTGROUP"}},
    {"NUVDiagram", {"ConnectionString"}}, {"GLControl", {"FormatGroupAlias"}}, {"ReportFilter", {"RLID"}},
    {"ClientCapture", {"SaveFormat"}}};

QHash<QString, QDesignerCustomWidgetInterface*> plugins()
{
    static QPluginLoader loader(QStringLiteral(QD8_DESIGNER_PLUGIN));
    QHash<QString, QDesignerCustomWidgetInterface*> byName;
    if (auto* collection = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(loader.instance()))
        for (QDesignerCustomWidgetInterface* widget : collection->customWidgets())
            byName.insert(widget->name().mid(5), widget);  // without "qd8::"
    return byName;
}

class DesignerControl : public testing::TestWithParam<const char*> {};

TEST_P(DesignerControl, PlacedWithoutDatabaseOrDialog)
{
    QDesignerCustomWidgetInterface* plugin = plugins().value(GetParam());
    ASSERT_TRUE(plugin) << "not in the widget box";
    const QString header = plugin->includeFile();  // installed below include/QD8Designer2/ as in src/
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral(QD8_SOURCE_DIR "/src/") + header) && !header.endsWith(QLatin1String("_p.h")));
    EXPECT_TRUE(plugin->group().startsWith(QLatin1String("QD8Designer2 ")) && !plugin->icon().isNull()
        && !plugin->toolTip().isEmpty() && !plugin->whatsThis().isEmpty());

    // A connection string typed in Designer names a file that must not come to be.
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("design.dat"));
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
    QWidget* widget = plugin->createWidget(&form);
    auto* hosted = qobject_cast<HostedControl*>(widget);
    PropertyBag bag;
    if (hosted)
        hosted->writeProperties(bag);
    const QMetaObject* meta = widget->metaObject();
    for (const QString& name : Settings.value(GetParam()) + bag.keys()) {
        const QMetaProperty property = meta->property(meta->indexOfProperty(name.toLatin1().constData()));
        EXPECT_TRUE(property.isDesignable() && property.isStored()) << name.toStdString();
        const bool text = property.metaType().id() == QMetaType::QString;
        const QVariant value = !text ? QVariant(1) : name.contains(QLatin1String("Connection")) ? "Driver=SQLite;Create=yes;Data Source=" + file : name.toUpper();
        EXPECT_TRUE(property.write(widget, value) && property.read(widget) == value) << name.toStdString();
        // Kept as typed: a connection string or a group is not a text for Qt's translators.
        EXPECT_TRUE(!text || plugin->domXml().contains(QStringLiteral("name=\"%1\" notr=\"true\"").arg(name)));
    }
    if (hosted) {
        for (const char* name : {"AppConnectionString", "UserID", "UserLoginName", "UserLoginPassword", "hWnd"})
            EXPECT_FALSE(meta->property(meta->indexOfProperty(name)).isDesignable()) << name;
        PropertyBag saved;
        hosted->writeProperties(saved);
        std::unique_ptr<QWidget> again(plugin->createWidget(nullptr));
        static_cast<HostedControl*>(again.get())->readProperties(saved);
        // ShortCutBar reads its icon folder back from "mIconPath", so it never returns.
        for (const QString& key : saved.keys())
            EXPECT_EQ(again->property(key.toLatin1().constData()).toString(), key == "IconPath" ? "" : widget->property(key.toLatin1().constData()).toString()) << key.toStdString();
    }
    // Designer reads every property it shows and writes back those a form keeps.
    for (int i = 0; i < meta->propertyCount(); ++i)
        if (meta->property(i).isDesignable() && meta->property(i).isStored())
            meta->property(i).write(widget, meta->property(i).read(widget));
    form.show();
    widget->resize(widget->size() + QSize(40, 30));  // Designer's resize handles
    QTest::qWait(150);
    EXPECT_TRUE(trace.entries().isEmpty()) << trace.composed().join(QLatin1Char('\n')).toStdString();
    EXPECT_FALSE(QFileInfo::exists(file));
    EXPECT_TRUE(modals.isEmpty() && test::scriptedMessages().shown.isEmpty()) << modals.join(QLatin1Char(' ')).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Controls, DesignerControl, testing::ValuesIn(Controls),
    [](const testing::TestParamInfo<const char*>& info) { return std::string(info.param); });

} // namespace
