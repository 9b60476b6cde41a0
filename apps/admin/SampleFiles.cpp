#include "SampleFiles.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSettings>
#include <QtEndian>

namespace qd8 {

namespace {

// The icons of one module: its colour and the command aliases whose icons ship. An alias
// ending in "!" has upper-case names (<ALIAS>.ICO, <ALIAS>16.ICO). Commands without icons
// (APPAYDUE, CENTERUSER), the bitmap of ARCHEQUE and the icons of SOPROMO are left out on
// purpose: the launchers show "Blank" for them.
struct ModuleIcons {
    const char* module;
    QRgb colour;
    bool hasGroupIcon;
    const char* aliases;
};

const ModuleIcons Modules[] = {
    {"GL", 0xff1f5faf, true, "GLJV GLCHART! GLBOOK GLTB GLRECURRING GLCLOSE GLLEDGER GLPROFIT GLBUDGET PROJECT JOURNALBOOK GLQUICK"},
    {"AR", 0xff2e7d32, true, "ARCUSTOMER ARINVOICE ARCREDIT ARAGING ARRECEIPT ARCREDITNOTE ARBILLING ARSTATEMENT BRANCH"},
    {"IC", 0xffd2691e, true, "ICPRODUCT ICISSUEUSE PURPR ICSTOCK ICCOUNT ICTRANSFER ICWAREHOUSE! ICMOVEMENT ICJOB ICJOBPRODUCTION PRODUCTLINE PRODUCTSECTION PRODUCTGROUP1 UNIT ICQUICK"},
    {"AP", 0xffb22222, true, "APVENDOR APINVOICE APPAYMENT APCHEQUE! APDEBITNOTE APAGING APWHT"},
    {"PU", 0xff6a3d9a, true, "PUPO PURECEIVE PURETURN PUQUOTE PUCOMPARE PUHISTORY PUOUTSTANDING PUPORTAL"},
    {"SO", 0xff00838f, true,
        "SOQUOTE SOORDER SODELIVERY SOCASH SOPRICE! SOSUMMARY SOMARKETING SOCOMMISSION CRMDAILYAPPOINTMENT SOCRM"},
    {"HR", 0xffad1457, true,
        "HREMPLOYEE HRLEAVE HROT HRCHANGEWORKPERIOD HRTIME HRPAYROLL HRPAYSLIP HRLEAVESUM HRTRAINING DIVISION DEPARTMENT SECTION EMPTYPE HRORGANIZATION HRQUICK"},
    {"FA", 0xff5d4037, true, "FAASSET FATRANSFER FADISPOSAL FADEPRECIATION FASCHEDULE"},
    {"CENTER", 0xff546e7a, false, "CENTERTODAY"},
};

struct IconFile {
    QString name;   // file name inside Icons/
    QString glyph;  // letters drawn on it
    QRgb colour;
    int size;
};

QList<IconFile> iconFiles()
{
    QList<IconFile> files;
    for (const ModuleIcons& m : Modules) {
        const QString module = QLatin1String(m.module);
        if (m.hasGroupIcon)
            files.append({module + QStringLiteral(".ico"), module, m.colour, 32});
        for (QString alias : QString::fromLatin1(m.aliases).split(QLatin1Char(' '))) {
            const bool upper = alias.endsWith(QLatin1Char('!'));
            if (upper)
                alias.chop(1);
            const QString extension = upper ? QStringLiteral(".ICO") : QStringLiteral(".ico");
            // The letters after the module prefix tell the commands of a module apart.
            const QString letters = alias.startsWith(module) && alias.size() > module.size() ? alias.mid(module.size()) : alias;
            files.append({alias + extension, letters.left(2), m.colour, 32});
            files.append({alias + QStringLiteral("16") + extension, letters.left(1), m.colour, 16});
        }
    }
    return files;
}

QImage drawIcon(const IconFile& icon)
{
    const int s = icon.size;
    QImage image(s, s, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);
    const QRectF tile(0.5, 0.5, s - 1.0, s - 1.0);
    const qreal radius = s / 5.0;
    const QColor colour = QColor::fromRgba(icon.colour);
    QLinearGradient shade(0, 0, 0, s);
    shade.setColorAt(0, colour.lighter(125));
    shade.setColorAt(1, colour.darker(115));
    painter.setPen(QPen(colour.darker(140), 1));
    painter.setBrush(shade);
    painter.drawRoundedRect(tile, radius, radius);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setBold(true);
    font.setPixelSize(icon.glyph.size() > 1 ? int(s * 0.42) : int(s * 0.7));
    font.setStyleStrategy(QFont::PreferAntialias);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(QRectF(0, 0, s, s), Qt::AlignCenter, icon.glyph);
    painter.end();
    return image.convertToFormat(QImage::Format_ARGB32);
}

// The icon container written by hand: ICONDIR, one ICONDIRENTRY and a PNG image, which
// every reader of Windows icons since Vista accepts. Used when no "ico" writer is present.
QByteArray icoWithPng(const QImage& image)
{
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    QByteArray ico(6 + 16, '\0');
    auto put16 = [&ico](int at, quint16 v) { qToLittleEndian(v, ico.data() + at); };
    auto put32 = [&ico](int at, quint32 v) { qToLittleEndian(v, ico.data() + at); };
    put16(2, 1);  // type: icon
    put16(4, 1);  // one image
    ico[6] = char(image.width() >= 256 ? 0 : image.width());
    ico[7] = char(image.height() >= 256 ? 0 : image.height());
    put16(10, 1);   // colour planes
    put16(12, 32);  // bits per pixel
    put32(14, quint32(png.size()));
    put32(18, 6 + 16);
    return ico + png;
}

bool writeIcon(const QString& path, const QImage& image, QString* error)
{
    QImageWriter writer(path, "ico");
    if (writer.canWrite() && writer.write(image))
        return true;
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(icoWithPng(image)) >= 0 && file.flush())
        return true;
    *error = QStringLiteral("cannot write the icon %1: %2").arg(path, file.errorString());
    return false;
}

struct IniValue {
    const char* key;
    QString value;
};

bool writeIni(const QString& path, const QList<QPair<QString, QList<IniValue>>>& sections, QString* error)
{
    // QSettings merges into an existing file: start from nothing so a rewrite drops old keys.
    QFile::remove(path);
    {
        QSettings ini(path, QSettings::IniFormat);
        for (const auto& [section, values] : sections) {
            ini.beginGroup(section);
            for (const IniValue& v : values)
                ini.setValue(QLatin1String(v.key), v.value);
            ini.endGroup();
        }
        ini.sync();
        if (ini.status() == QSettings::NoError)
            return true;
    }
    *error = QStringLiteral("cannot write %1").arg(path);
    return false;
}

const QString ThemeFile = QStringLiteral("Support/Theme/Theme.ini");
const QString StartupFile = QStringLiteral("QD8STARTUP.INI");

} // namespace

QStringList SampleFiles::relativePaths()
{
    QStringList paths;
    for (const IconFile& icon : iconFiles())
        paths << QStringLiteral("Icons/") + icon.name;
    return paths << ThemeFile << StartupFile;
}

int SampleFiles::iconCount()
{
    return int(iconFiles().size());
}

bool SampleFiles::write(const QString& dir, QString* error)
{
    const QDir root(dir);
    for (const QString& folder : {QStringLiteral("Icons"), QStringLiteral("Support/Theme")})
        if (!root.mkpath(folder)) {
            *error = QStringLiteral("cannot create the folder %1").arg(root.filePath(folder));
            return false;
        }
    for (const IconFile& icon : iconFiles())
        if (!writeIcon(root.filePath(QStringLiteral("Icons/") + icon.name), drawIcon(icon), error))
            return false;

    // FAQURL and KBASEURL are left empty: those pages fall back to WEBSITE.
    const QList<IniValue> oem = {
        {"OEMSHORTNAME", QStringLiteral("QD8")},
        {"WEBSITE", QStringLiteral("https://www.qd8.example/")},
        {"MARKETINGURL", QStringLiteral("https://www.qd8.example/sales")},
        {"NEWSURL", QStringLiteral("https://www.qd8.example/news")},
        {"FAQURL", QString()},
        {"ELEARNINGURL", QStringLiteral("https://learn.qd8.example/")},
        {"DOWNLOADURL", QStringLiteral("https://www.qd8.example/download")},
        {"KBASEURL", QString()},
        {"COMMENTURL", QStringLiteral("https://www.qd8.example/comment")},
        {"CONTACTURL", QStringLiteral("https://www.qd8.example/contact")},
        {"SUPPORTEMAIL", QStringLiteral("support@qd8.example")},
        {"ABOUT", QStringLiteral("QD8 Business Suite 2.0\n"
                                 "ระบบบริหารธุรกิจ QD8 รุ่น 2.0\n"
                                 "Copyright © 2026 QD8 Software Co., Ltd. สงวนลิขสิทธิ์")},
    };
    if (!writeIni(root.filePath(ThemeFile), {{QStringLiteral("OEM"), oem}, {QStringLiteral("Theme"), {{"Default", QStringLiteral("0")}}}},
            error))
        return false;

    // The installation's dealer answers the contact page and support mail. An empty key
    // here (NEWSURL) keeps the reseller's value. CENTERFXRATE is the web command's address.
    const QList<IniValue> local = {
        {"CONTACTURL", QStringLiteral("https://dealer-cnx.example/qd8/contact")},
        {"SUPPORTEMAIL", QStringLiteral("helpdesk@siamtrading.example")},
        {"NEWSURL", QString()},
        {"CENTERFXRATE", QStringLiteral("https://www.bot.or.th/en/statistics/exchange-rate.html")},
    };
    const QList<IniValue> startup = {
        {"Company", QStringLiteral("บริษัท สยามเทรดดิ้ง จำกัด")},
        {"CompanyEN", QStringLiteral("Siam Trading Co., Ltd.")},
    };
    return writeIni(root.filePath(StartupFile), {{QStringLiteral("OEM"), local}, {QStringLiteral("Startup"), startup}}, error);
}

} // namespace qd8
