// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusAbstractAdaptor>
#include <QDBusMessage>
#include <QString>
#include <QVariantMap>

#include "app/program/Errand.h"

class ApplicationObject;

/// The interface example.orlen.Keyrill.Macros beside org.freedesktop.Application, as
/// packaging/example.orlen.Keyrill.Macros.xml has it. No call has a result: what macros there are, and what
/// is in them, is told to nobody.
class MacrosInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "example.orlen.Keyrill.Macros")

  public:
    explicit MacrosInterface(ApplicationObject& object);

  public slots:
    // What the bus calls.
    // NOLINTBEGIN(readability-identifier-naming): the names are the interface's
    void Play(const QVariantMap& options, const QDBusMessage& call);
    void PlayMacro(const QString& name, const QVariantMap& options, const QDBusMessage& call);
    void PlayFile(const QString& uri, const QVariantMap& options, const QDBusMessage& call);
    void Show(const QString& name, const QDBusMessage& call);
    // NOLINTEND(readability-identifier-naming)

  private:
    void play(PlayErrand errand, const QVariantMap& options, const QDBusMessage& call);

    ApplicationObject& m_object;
};
