#include "workbench/window/timers.h"

#include <QTimer>
#include <algorithm>
#include <utility>

Timers::~Timers() {
    for (const auto& [number, timer] : m_timers) delete timer;
}

int Timers::start(int milliseconds, Call call) {
    const int number = ++m_last;
    auto* timer = new QTimer;
    m_timers.emplace(number, timer);
    QObject::connect(timer, &QTimer::timeout, timer,
                     [number, call = std::move(call)] { call(number); });
    timer->start(std::max(milliseconds, 1));
    return number;
}

bool Timers::kill(int number) {
    const auto found = m_timers.find(number);
    if (found == m_timers.end()) return false;
    found->second->stop();
    found->second->deleteLater();  // it may be calling
    m_timers.erase(found);
    return true;
}
