#pragma once

#include <QString>
#include <QStringList>

namespace qd8 {

// The files of the sample installation, written beside (or apart from) its databases:
//
//   DIR/Icons/                  a Windows icon for every icon name the sample catalogue
//                               gives: <ALIAS>.ico 32x32 (TCmdIcon), <ALIAS>16.ico 16x16
//                               (TCmdSmallIcon), <MODULE>.ico 32x32 (TCmGIcon), spelled
//                               exactly as the catalogue spells them
//   DIR/Support/Theme/Theme.ini what the reseller ships: [OEM] short name, web pages,
//                               support mail and the about text, [Theme] Default
//   DIR/QD8STARTUP.INI          the installation's own [OEM] overrides and [Startup]
//                               company names
//
// The icon list is kept here, not read from the catalogue, so that the PostgreSQL form
// writes the same files without a database at hand.
class SampleFiles {
public:
    // Every file that write() creates, relative to DIR, with "/" separators.
    static QStringList relativePaths();
    // Writes every file, replacing what is there; other files in DIR are left alone.
    // Returns false and describes the first failure in *error.
    static bool write(const QString& dir, QString* error);
    // The number of icons write() creates.
    static int iconCount();
};

} // namespace qd8
