#include "controls/alert_factory.h"

namespace controls {

IAlert& AlertFactory::NewAlert() { return Make(); }

IAlert& AlertFactory::DefaultAlert() {
    // Unloading clears the default reference: the next use makes a fresh instance.
    if (!m_default || !m_default->Loaded()) m_default = &Make();
    return *m_default;
}

std::vector<IAlert*> AlertFactory::OpenAlerts() { return {m_board.open.begin(), m_board.open.end()}; }

AlertModel& AlertFactory::Make() {
    // Objects of alerts that have left are dropped here, never from inside their own timer.
    std::erase_if(m_instances, [this](const auto& instance) {
        if (instance->Model().Loaded()) return false;
        if (&instance->Model() == m_default) m_default = nullptr;
        return true;
    });
    m_instances.push_back(Create(m_board));
    return m_instances.back()->Model();
}

}  // namespace controls
