#pragma once

#include "navigation/CommandLauncher.h"

namespace qd8 {

// A launcher with the suite's tool buttons beside the catalogue commands (the document
// tool bar and the ribbon): help, calculator, the image and spec folders, and
// the installation's theme file with its OEM short name.
class ToolLauncher : public CommandLauncher {
    Q_OBJECT
    Q_PROPERTY(QString TodayPage READ TodayPage WRITE setTodayPage)

public:
    using CommandLauncher::CommandLauncher;

    // A text the host keeps here (the start page of its today view).
    QString TodayPage() const { return m_todayPage; }
    void setTodayPage(const QString& value) { m_todayPage = value; }
    // AppPath + "\Support\Theme\Theme.ini".
    QString themeFile() const;
    // The theme file's OEMSHORTNAME, "NUV" when it is empty.
    QString OEMShortName() const;

    // The tool actions. A folder that is not set shows why in a message and runs nothing.
    void runHelp();
    void runCalculator();
    void openImageFolder();
    void openSpecFolder();

protected:
    QStringList propertyKeysRead() const override;
    // Runs a program through the host's program runner; one that cannot start is named.
    // True when it started.
    bool start(const QString& commandLine);
    // Runs the program, or says that the folder it needs is not set. True when it started.
    bool runInFolder(const QString& folder, const QString& commandLine, const QString& folderName);

private:
    QString m_todayPage;
};

} // namespace qd8
