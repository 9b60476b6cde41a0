#pragma once

#include "foundation/Services.h"

namespace qd8 {

class WorkbenchWindow;

// Web pages inside the workbench. While a window is open it is the shell service in force:
// a web address (http, https) opens in a browser tab of the window; mail addresses, folders,
// programs, and pages the embedded browser cannot show go to the desktop's own shell, the one
// it replaced and puts back when the window closes.
class WorkbenchWeb : public ShellService {
public:
    explicit WorkbenchWeb(WorkbenchWindow& window);
    ~WorkbenchWeb() override;

    bool run(const QString& commandLine, int windowStyle) override;
    bool openUrl(const QString& url) override;

    ShellService& desktop() const { return *m_desktop; }
    // An http or https address with a host: what the browser tab shows.
    static bool isWebAddress(const QString& text);

private:
    WorkbenchWindow& m_window;
    ShellService* m_desktop;
};

} // namespace qd8
