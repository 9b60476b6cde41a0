#include "support/ScriptedServices.h"

#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", qgetenv("QT_QPA_PLATFORM").isEmpty() ? QByteArray("offscreen") : qgetenv("QT_QPA_PLATFORM"));
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    for (auto [name, built] : {std::pair{"QD8_ADMIN", QD8_BUILT_ADMIN}, {"QD8_WORKBENCH", QD8_BUILT_WORKBENCH},
             {"QD8_THAI_EXTENSION", QD8_BUILT_THAI_EXTENSION}})
        if (qEnvironmentVariableIsEmpty(name))
            qputenv(name, built);
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    // Every test starts with scripted dialogs and shell, so nothing can wait on a person.
    struct Scripted : testing::EmptyTestEventListener {
        void OnTestStart(const testing::TestInfo&) override { qd8::test::installScriptedServices(); }
    };
    testing::UnitTest::GetInstance()->listeners().Append(new Scripted);
    return RUN_ALL_TESTS();
}
