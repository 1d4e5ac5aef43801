#pragma once

#include "FakePortal.h"
#include "PrivateBus.h"

#include <PortalShortcutBackend_p.h>

#include <QList>
#include <QMap>
#include <QPair>
#include <QVector>

#include <memory>

using Failure = QxtGlobalShortcut::Failure;

/// Keeps what a backend reports.
class Recorder : public GlobalShortcutBackend::Listener
{
public:
    void resultChanged(const QString &id, const GlobalShortcutBackend::Result &result) override
    {
        results[id] = result;
        history[id].append(result.failure);
    }
    void activated(const QString &id, const QString &token) override
    {
        activations.append({id, token});
    }

    QMap<QString, GlobalShortcutBackend::Result> results;
    QMap<QString, QVector<Failure>> history;
    QList<QPair<QString, QString>> activations;
};

/// A backend and a portal of the test's own, on a bus of the test's own.
struct PortalFixture
{
    PrivateBus bus;
    FakePortal portal{bus};
    Recorder recorder;
    std::unique_ptr<PortalShortcutBackend> backend;

    /// The preferred keys of an action if a test does not care.
    static constexpr int sKeys = static_cast<int>(Qt::ControlModifier)
                                 | static_cast<int>(Qt::AltModifier) | static_cast<int>(Qt::Key_K);

    void create() { backend = std::make_unique<PortalShortcutBackend>(recorder, bus.connect()); }
    void add(const QString &id, int chord = sKeys, const QString &description = {})
    {
        backend->add({id, description, chord});
    }
    Failure failure(const QString &id) const
    {
        return recorder.results.value(id, {Failure::Pending, {}}).failure;
    }
    QString trigger(const QString &id) const { return recorder.results.value(id).trigger; }
    /// Returns a hotkey as the portal answers it.
    static PortalShortcut answer(const QString &id, const QVariant &trigger)
    {
        return {id, {{"trigger_description", trigger}}};
    }
};
