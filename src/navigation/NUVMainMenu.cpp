#include "navigation/NUVMainMenu.h"

#include "database/LookupScope_p.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtMath>

namespace qd8 {

namespace {

constexpr qreal TargetMillimetres = 9;
// The keypad, row by row; "BS" rubs out, "C" clears, "TEXT" switches text and digits, "OK" accepts.
const char* const KeypadRows[][3] = {
    {"7", "8", "9"}, {"4", "5", "6"}, {"1", "2", "3"}, {"0", ".", "BS"}, {"C", "TEXT", "OK"}};

} // namespace

NUVMainMenu::NUVMainMenu(QWidget* parent)
    : CommandLauncher(parent)
{
    const int target = targetSize();
    auto* layout = new QVBoxLayout(this);
    m_titleLabel = new QLabel(this);
    QFont big = font();
    big.setPointSizeF(big.pointSizeF() * 1.8);
    big.setBold(true);
    m_titleLabel->setFont(big);
    m_subTitleLabel = new QLabel(this);
    layout->addWidget(m_titleLabel);
    layout->addWidget(m_subTitleLabel);

    auto* body = new QHBoxLayout;
    layout->addLayout(body, 1);
    auto* commands = new QVBoxLayout;
    body->addLayout(commands, 3);
    m_grid = new QWidget(this);
    commands->addWidget(m_grid, 1);
    auto* paging = new QHBoxLayout;
    commands->addLayout(paging);
    m_previous = new QToolButton(this);
    m_previous->setText(QStringLiteral("◀"));
    m_next = new QToolButton(this);
    m_next->setText(QStringLiteral("▶"));
    m_pageLabel = new QLabel(this);
    m_pageLabel->setAlignment(Qt::AlignCenter);
    for (QToolButton* b : {m_previous, m_next})
        b->setMinimumSize(2 * target, target);
    paging->addWidget(m_previous);
    paging->addWidget(m_pageLabel, 1);
    paging->addWidget(m_next);
    connect(m_previous, &QToolButton::clicked, this, &NUVMainMenu::previousPage);
    connect(m_next, &QToolButton::clicked, this, &NUVMainMenu::nextPage);

    auto* keypad = new QVBoxLayout;
    body->addLayout(keypad, 1);
    m_entry = new QLineEdit(this);
    m_entry->setMinimumHeight(target);
    QFont entryFont = font();
    entryFont.setPointSizeF(entryFont.pointSizeF() * 1.5);
    m_entry->setFont(entryFont);
    m_entry->setAlignment(Qt::AlignRight);
    connect(m_entry, &QLineEdit::returnPressed, this, [this] { Q_EMIT EntryAccepted(EnteredText()); });
    keypad->addWidget(m_entry);
    auto* keys = new QGridLayout;
    keypad->addLayout(keys, 1);
    for (int row = 0; row < 5; ++row)
        for (int column = 0; column < 3; ++column) {
            const QString key = QString::fromLatin1(KeypadRows[row][column]);
            auto* button = new QToolButton(this);
            button->setMinimumSize(target, target);
            button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
            button->setFont(entryFont);
            button->setFocusPolicy(Qt::NoFocus);  // the keys type into the entry line, which keeps the focus
            connect(button, &QToolButton::clicked, this, [this, key] { pressKey(key); });
            keys->addWidget(button, row, column);
            m_keys.insert(key, button);
        }
    setTextMode(false);
    buildGrid();
}

NUVMainMenu::~NUVMainMenu() = default;

int NUVMainMenu::targetSize() const
{
    // Rounded up, so a target is never smaller.
    return qCeil(TargetMillimetres * logicalDpiY() / 25.4);
}

void NUVMainMenu::SetFirst(const QString& MenuTitle, const QString& SubTitle, int Cols, int Rows)
{
    m_title = MenuTitle;
    m_subTitle = SubTitle;
    m_titleLabel->setText(MenuTitle);
    m_subTitleLabel->setText(SubTitle);
    m_subTitleLabel->setVisible(!SubTitle.isEmpty());
    m_cols = qMax(1, Cols);
    m_rows = qMax(1, Rows);
    buildGrid();
}

void NUVMainMenu::buildGrid()
{
    qDeleteAll(m_buttons);
    m_buttons.clear();
    delete m_grid->layout();
    auto* grid = new QGridLayout(m_grid);
    const int target = targetSize();
    QFont font = this->font();
    font.setPointSizeF(font.pointSizeF() * 1.3);
    for (int i = 0; i < m_cols * m_rows; ++i) {
        auto* button = new QToolButton(m_grid);
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        button->setIconSize(QSize(target, target));
        button->setMinimumSize(2 * target, 2 * target);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
        button->setFont(font);
        button->setFocusPolicy(Qt::StrongFocus);
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);  // an empty place keeps the grid's shape
        button->setSizePolicy(policy);
        button->installEventFilter(this);
        connect(button, &QToolButton::clicked, this, [this, i] {
            const int index = m_page * m_cols * m_rows + i;
            if (index < m_commands.size())
                launch(m_commands.at(index).alias);
        });
        grid->addWidget(button, i / m_cols, i % m_cols);
        m_buttons << button;
    }
    // Equal places, whatever the captions' lengths.
    for (int column = 0; column < m_cols; ++column)
        grid->setColumnStretch(column, 1);
    for (int row = 0; row < m_rows; ++row)
        grid->setRowStretch(row, 1);
    fillPage();
}

void NUVMainMenu::Refresh()
{
    deriveCommandCentre();
    const CommandCatalogue commands = catalogue();
    if (!commands.canLoad())
        return;
    LookupScope scope;
    const qint16 language = qint16(commands.languageId());
    const bool changed = language != LanguageID();
    mutableSession().LanguageID = language;
    m_commands.clear();
    commands.load(CommandSet::User, [&](const CommandEntry& entry) {
        if (entry.listable) {
            m_images.add(entry.iconKey, entry.iconFile);
            m_commands.append({entry.alias, entry.caption, entry.iconKey});
        }
        return true;
    });
    m_page = 0;
    if (changed)
        reword();
    fillPage();
}

int NUVMainMenu::pageCount() const
{
    const int perPage = m_cols * m_rows;
    return qMax(1, int((m_commands.size() + perPage - 1) / perPage));
}

void NUVMainMenu::setPage(int page)
{
    page = qBound(0, page, pageCount() - 1);
    if (page == m_page)
        return;
    m_page = page;
    fillPage();
}

void NUVMainMenu::nextPage()
{
    setPage(m_page + 1);
}

void NUVMainMenu::previousPage()
{
    setPage(m_page - 1);
}

QStringList NUVMainMenu::pageAliases() const
{
    QStringList aliases;
    const int first = m_page * m_cols * m_rows;
    for (int i = first; i < m_commands.size() && i < first + m_cols * m_rows; ++i)
        aliases << m_commands.at(i).alias;
    return aliases;
}

void NUVMainMenu::fillPage()
{
    const int first = m_page * m_cols * m_rows;
    for (int i = 0; i < m_buttons.size(); ++i) {
        QToolButton* button = m_buttons.at(i);
        const bool used = first + i < m_commands.size();
        button->setVisible(used);
        if (!used)
            continue;
        const Command& command = m_commands.at(first + i);
        // A tool button takes "&" as a mnemonic mark: "&&" shows one ampersand.
        button->setText(command.caption);
        button->setIcon(m_images.icon(command.iconKey));
        button->setAccessibleName(QString(command.caption).replace(QStringLiteral("&&"), QStringLiteral("&")));
    }
    m_pageLabel->setText(bilingual("หน้า %1/%2", "Page %1/%2").arg(m_page + 1).arg(pageCount()));
    m_previous->setEnabled(m_page > 0);
    m_next->setEnabled(m_page + 1 < pageCount());
}

QToolButton* NUVMainMenu::keypadButton(const QString& key) const
{
    return m_keys.value(key);
}

QString NUVMainMenu::EnteredText() const
{
    return m_entry->text();
}

void NUVMainMenu::setEnteredText(const QString& text)
{
    m_entry->setText(text);
}

void NUVMainMenu::setTextMode(bool text)
{
    m_textMode = text;
    // Digits and one decimal point for quantities and document numbers; text is free.
    if (text) {
        m_entry->setValidator(nullptr);
        m_entry->setInputMethodHints(Qt::ImhNone);
    } else {
        m_entry->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*\\.?[0-9]*")), m_entry));
        m_entry->setInputMethodHints(Qt::ImhFormattedNumbersOnly);
        if (!m_entry->hasAcceptableInput())
            m_entry->clear();
    }
    reword();
}

void NUVMainMenu::pressKey(const QString& key)
{
    if (key == QLatin1String("BS")) {
        m_entry->backspace();
    } else if (key == QLatin1String("C")) {
        m_entry->clear();
    } else if (key == QLatin1String("TEXT")) {
        setTextMode(!m_textMode);
        m_entry->setFocus();
    } else if (key == QLatin1String("OK")) {
        Q_EMIT EntryAccepted(EnteredText());
    } else {
        m_entry->insert(key);  // the validator refuses a second decimal point
    }
}

void NUVMainMenu::reword()
{
    const struct {
        const char* key;
        const char* caption;
        const char* thai;
        const char* english;
    } words[] = {
        {"BS", "⌫", "ลบ", "Backspace"},
        {"C", "C", "ล้าง", "Clear"},
        {"OK", "OK", "ตกลง", "OK"},
    };
    for (const auto& w : words) {
        m_keys.value(QLatin1String(w.key))->setText(QString::fromUtf8(w.caption));
        m_keys.value(QLatin1String(w.key))->setAccessibleName(bilingual(w.thai, w.english));
    }
    for (int digit = 0; digit <= 9; ++digit)
        m_keys.value(QString::number(digit))->setText(QString::number(digit));
    m_keys.value(QStringLiteral("."))->setText(QStringLiteral("."));
    m_keys.value(QStringLiteral("."))->setAccessibleName(bilingual("จุดทศนิยม", "Decimal point"));
    // The switch names what it switches to.
    m_keys.value(QStringLiteral("TEXT"))->setText(m_textMode ? QStringLiteral("123") : QStringLiteral("ก ABC"));
    m_keys.value(QStringLiteral("TEXT"))->setAccessibleName(m_textMode ? bilingual("ป้อนตัวเลข", "Type digits") : bilingual("ป้อนข้อความ", "Type text"));
    m_entry->setAccessibleName(m_textMode ? bilingual("ข้อความ", "Text") : bilingual("จำนวนหรือเลขที่เอกสาร", "Quantity or document number"));
    m_previous->setAccessibleName(bilingual("หน้าก่อน", "Previous page"));
    m_next->setAccessibleName(bilingual("หน้าถัดไป", "Next page"));
    m_grid->setAccessibleName(bilingual("คำสั่ง", "Commands"));
}

void NUVMainMenu::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        reword();
        fillPage();  // the page's number
    }
    CommandLauncher::changeEvent(event);
}

bool NUVMainMenu::moveAmongButtons(int key, QToolButton* from)
{
    const int index = int(m_buttons.indexOf(from));
    const int shown = int(pageAliases().size());
    int row = index / m_cols, column = index % m_cols;
    switch (key) {
    case Qt::Key_Left: --column; break;
    case Qt::Key_Right: ++column; break;
    case Qt::Key_Up: --row; break;
    case Qt::Key_Down: ++row; break;
    default: return false;
    }
    const int to = row * m_cols + column;
    if (column < 0 || column >= m_cols || row < 0 || to >= shown)
        return true;  // at the edge: stay
    m_buttons.at(to)->setFocus(Qt::TabFocusReason);
    return true;
}

bool NUVMainMenu::eventFilter(QObject* watched, QEvent* event)
{
    auto* button = qobject_cast<QToolButton*>(watched);
    if (event->type() == QEvent::KeyPress && button && m_buttons.contains(button)) {
        auto* key = static_cast<QKeyEvent*>(event);
        switch (key->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            button->click();
            return true;
        case Qt::Key_PageDown:
            nextPage();
            return true;
        case Qt::Key_PageUp:
            previousPage();
            return true;
        default:
            break;
        }
        if (moveAmongButtons(key->key(), button))
            return true;
        // Digits and the point go to the entry line, which takes the focus.
        if (!key->text().isEmpty() && QStringLiteral("0123456789.").contains(key->text())) {
            m_entry->setFocus();
            m_entry->insert(key->text());
            return true;
        }
    }
    return CommandLauncher::eventFilter(watched, event);
}

} // namespace qd8
