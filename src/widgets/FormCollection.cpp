#include "widgets/FormCollection.h"

#include "widgets/FormRegistry.h"

#include <QWidget>

namespace qd8 {

QWidget* WindowFormCollection::add(const QString& name)
{
    QWidget* form = FormRegistry::create(name, m_owner);
    if (!form)
        return nullptr;
    form->setWindowFlag(Qt::Window);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->show();
    return form;
}

} // namespace qd8
