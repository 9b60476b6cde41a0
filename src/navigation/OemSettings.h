#pragma once

#include <QString>

namespace qd8 {

// The installation's branding and web addresses. Two INI files under AppPath hold them,
// both in the section [OEM]:
//   AppPath\Support\Theme\Theme.ini   what the reseller ships (OEMSHORTNAME, WEBSITE,
//                                     NEWSURL, FAQURL, ..., SUPPORTEMAIL, ABOUT)
//   AppPath\QD8STARTUP.INI            the installation's own overrides of the same keys
//                                     (a dealer's contact page, an intranet FAQ)
// A key set in the startup file wins; an empty value counts as not set.
class OemSettings {
public:
    explicit OemSettings(const QString& appPath) : m_appPath(appPath) {}

    static QString themeFile(const QString& appPath);
    static QString startupFile(const QString& appPath);

    // The theme file's OEMSHORTNAME, "NUV" when it is empty or missing.
    QString shortName() const;
    // The value of a key, startup file first, then the theme file; "" when neither has it.
    QString value(const QString& key) const;
    // The address of a web page: its key, else "WEBSITE", else the built-in address of
    // the page.
    QString webPage(const QString& key) const;
    // The built-in address behind a web-page key.
    static QString builtInPage(const QString& key);

private:
    static QString read(const QString& file, const QString& key);
    QString m_appPath;
};

} // namespace qd8
