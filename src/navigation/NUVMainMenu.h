#pragma once

#include "navigation/CommandLauncher.h"
#include "navigation/IconList.h"

class QLabel;
class QLineEdit;
class QToolButton;

namespace qd8 {

// The production main menu for touch screens: the user's own commands (QD8TUserCommand,
// the two list rights as in the shortcut bar) as large buttons in a grid of Cols × Rows
// with paging, a title and subtitle above, and a keypad for quantities and document
// numbers beside. Every target is at least 9 mm at the screen's dpi. The entry line takes
// digits from the keypad or the keyboard; its text key switches it to text, which a touch
// station types through the platform's input method (Qt Virtual Keyboard, Thai layout
// included). A command button raises Lunch with its alias after the catalogue re-lookup;
// the host reads EnteredText for the quantity or number the user typed first.
//
// Keyboard: arrows move between the command buttons, Enter or Space opens one, Page Up
// and Page Down turn the page, digits go to the entry line from anywhere, Enter there
// raises EntryAccepted.
class NUVMainMenu : public CommandLauncher {
    Q_OBJECT
    Q_PROPERTY(QString EnteredText READ EnteredText WRITE setEnteredText)

public:
    explicit NUVMainMenu(QWidget* parent = nullptr);
    ~NUVMainMenu() override;

    // The titles and the grid's size (at least 1 × 1).
    Q_INVOKABLE void SetFirst(const QString& MenuTitle, const QString& SubTitle, int Cols, int Rows);
    QString MenuTitle() const { return m_title; }
    QString SubTitle() const { return m_subTitle; }
    int Cols() const { return m_cols; }
    int Rows() const { return m_rows; }

    // Pages count from 0.
    int page() const { return m_page; }
    int pageCount() const;
    void setPage(int page);
    // The aliases on the current page, in button order.
    QStringList pageAliases() const;
    // The Cols × Rows buttons, row by row; those past the last command are hidden.
    const QList<QToolButton*>& commandButtons() const { return m_buttons; }
    QToolButton* keypadButton(const QString& key) const;
    QLineEdit* entry() const { return m_entry; }
    QString EnteredText() const;
    void setEnteredText(const QString& text);
    // Text mode: the entry takes any text (the input method's keyboard), else digits only.
    bool textMode() const { return m_textMode; }
    void setTextMode(bool text);
    // The smallest target side: 9 mm at the screen's dpi, in pixels.
    int targetSize() const;

public Q_SLOTS:
    // Loads the user's own commands (needs ConnectionString and IconPath, as the shortcut bar).
    void Refresh() override;
    void nextPage();
    void previousPage();

Q_SIGNALS:
    // Enter on the entry line or the keypad's OK key.
    void EntryAccepted(const QString& Text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct Command {
        QString alias;
        QString caption;
        QString iconKey;
    };
    void buildGrid();
    void fillPage();
    void pressKey(const QString& key);
    void reword();
    bool moveAmongButtons(int key, QToolButton* from);

    QString m_title;
    QString m_subTitle;
    int m_cols = 3;
    int m_rows = 3;
    int m_page = 0;
    bool m_textMode = false;
    QList<Command> m_commands;
    QList<QToolButton*> m_buttons;
    QHash<QString, QToolButton*> m_keys;
    IconList m_images;
    QLabel* m_titleLabel = nullptr;
    QLabel* m_subTitleLabel = nullptr;
    QLabel* m_pageLabel = nullptr;
    QToolButton* m_previous = nullptr;
    QToolButton* m_next = nullptr;
    QWidget* m_grid = nullptr;
    QLineEdit* m_entry = nullptr;
};

} // namespace qd8
