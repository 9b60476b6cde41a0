#pragma once

#include <QString>

class QWidget;

namespace qd8 {

// The host's collection of open forms, as a list control hands it the document or master
// form to open: add() creates the form registered under the name, lets the host set it up
// (session, permissions) and shows it where the host shows its forms (a tab, a window).
// The control then drives the form through its late-bound members.
class FormCollection {
public:
    virtual ~FormCollection() = default;
    // The new form, or nullptr when no form is registered under `name`.
    virtual QWidget* add(const QString& name) = 0;
};

// Each form a window of its own, created from the form registry.
class WindowFormCollection : public FormCollection {
public:
    explicit WindowFormCollection(QWidget* owner = nullptr) : m_owner(owner) {}
    QWidget* add(const QString& name) override;

private:
    QWidget* m_owner;
};

} // namespace qd8
