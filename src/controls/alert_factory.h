#pragma once
// Makes frmAlertWindow objects and keeps each until its alert has unloaded. It holds the
// process-wide state of the alerts (the slot mask and the registry of loaded alerts), so a
// program has one factory.
#include <memory>
#include <vector>

#include "controls/alert.h"
#include "controls/alert_model.h"

namespace controls {

// One frmAlertWindow object: its model and whatever shows it.
class AlertInstance {
public:
    virtual ~AlertInstance() = default;
    virtual AlertModel& Model() = 0;
};

class AlertFactory : public IAlertFactory {
public:
    IAlert& NewAlert() override;
    IAlert& DefaultAlert() override;
    std::vector<IAlert*> OpenAlerts() override;
    const AlertBoard& Board() const { return m_board; }

protected:
    // A new object whose model has been loaded on the board.
    virtual std::unique_ptr<AlertInstance> Create(AlertBoard& board) = 0;

private:
    AlertModel& Make();

    AlertBoard m_board;
    std::vector<std::unique_ptr<AlertInstance>> m_instances;
    AlertModel* m_default = nullptr;
};

}  // namespace controls
