#include "demo/window/GivenFolderChooser.h"

#include <utility>

#include <QMetaObject>

namespace Loadwick {

GivenFolderChooser::GivenFolderChooser(Answer answer) : m_answer(std::move(answer)) {}

void GivenFolderChooser::open(Chosen chosen)
{
    QMetaObject::invokeMethod(
        &m_interface, [this, chosen = std::move(chosen)] { chosen(m_answer()); },
        Qt::QueuedConnection);
}

} // namespace Loadwick
