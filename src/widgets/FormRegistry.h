#pragma once

#include <QString>
#include <QStringList>
#include <functional>

class QWidget;

namespace qd8 {

// The forms a host offers by name: the document forms a list opens, the search and
// memorandum forms the ribbon shows, the command forms the workbench opens for Lunch.
// A control asks for a form by name and never includes the form's code; a name nobody
// registered gives nullptr, and the control says so.
class FormRegistry {
public:
    using Factory = std::function<QWidget*(QWidget* parent)>;

    static void registerForm(const QString& name, Factory factory);
    static void unregisterForm(const QString& name);
    static bool contains(const QString& name);
    static QStringList names();
    // A new instance of the form, or nullptr when the name is not registered.
    static QWidget* create(const QString& name, QWidget* parent = nullptr);
    // Creates the form as a modal window of its own and shows it without blocking the
    // caller (closing it deletes it). False when the name is not registered.
    static bool showModal(const QString& name, QWidget* parent);
};

} // namespace qd8
