// SPDX-License-Identifier: MIT
#include "app/program/TerminationSignals.h"

#include <QSocketNotifier>

#include "platform/linux/SignalCatcher.h"

TerminationSignals::TerminationSignals(AtOnce atOnce, void* context)
    : m_catcher(std::make_unique<SignalCatcher>(atOnce, context)) {
    if (m_catcher->fileDescriptor() < 0) qFatal("no descriptor is left for signals");
    auto* notifier = new QSocketNotifier(m_catcher->fileDescriptor(), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this, notifier] {
        notifier->setEnabled(false);
        emit received();
    });
}

TerminationSignals::~TerminationSignals() = default;
