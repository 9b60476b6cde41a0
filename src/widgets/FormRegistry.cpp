#include "widgets/FormRegistry.h"

#include <QMap>
#include <QWidget>

namespace qd8 {

namespace {
QMap<QString, FormRegistry::Factory>& factories()
{
    static QMap<QString, FormRegistry::Factory> registered;
    return registered;
}
} // namespace

void FormRegistry::registerForm(const QString& name, Factory factory)
{
    factories().insert(name, std::move(factory));
}

void FormRegistry::unregisterForm(const QString& name)
{
    factories().remove(name);
}

bool FormRegistry::contains(const QString& name)
{
    return factories().contains(name);
}

QStringList FormRegistry::names()
{
    return factories().keys();
}

QWidget* FormRegistry::create(const QString& name, QWidget* parent)
{
    const auto found = factories().constFind(name);
    return found == factories().constEnd() ? nullptr : (*found)(parent);
}

bool FormRegistry::showModal(const QString& name, QWidget* parent)
{
    QWidget* form = create(name, parent);
    if (!form)
        return false;
    form->setWindowFlag(Qt::Window, true);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->setWindowModality(Qt::ApplicationModal);
    form->show();
    return true;
}

} // namespace qd8
