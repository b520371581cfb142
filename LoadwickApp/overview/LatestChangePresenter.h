#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "components/TrendMark.h"
#include "model/ScanModel.h"
#include "text/TextLocale.h"

namespace Loadwick {

struct ScanReport;

/// How the total of a report differs from the scan of its repository that was recorded before it.
/// The model outlives it and must not change afterwards.
class LatestChangePresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Overview's presenter.")
    Q_PROPERTY(bool isKnown READ isKnown NOTIFY changed)
    Q_PROPERTY(int kind READ kind NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString symbol READ symbol NOTIFY changed)
    Q_PROPERTY(QString since READ since NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)

public:
    LatestChangePresenter(ScanModel &model, TextLocale locale);

    void show(const ScanReport &report);

    /// Whether an earlier scan of the repository is recorded; otherwise the rest is empty.
    [[nodiscard]] bool isKnown() const noexcept { return !m_since.isEmpty(); }
    /// For a `TrendPill`.
    [[nodiscard]] int kind() const noexcept { return m_mark.kind; }
    [[nodiscard]] QString title() const { return m_mark.title; }
    [[nodiscard]] QString symbol() const { return m_mark.symbol; }
    /// When the earlier scan was made.
    [[nodiscard]] QString since() const { return m_since; }
    /// All of it, for a screen reader.
    [[nodiscard]] QString sentence() const;

    /// Asks for what changed since then.
    Q_INVOKABLE void open() { Q_EMIT opened(); }

Q_SIGNALS:
    void changed();
    void opened();

private:
    void showHistory();

    ScanModel &m_model;
    TextLocale m_locale;
    std::optional<std::string> m_repository; ///< of the report
    std::int64_t m_total = 0;                ///< of the report
    TrendMark m_mark;
    QString m_difference; ///< with its unit
    QString m_since;
};

} // namespace Loadwick
