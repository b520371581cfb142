#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "history/WeeklyKPIReader.h"
#include "model/TaskDispatcher.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The card of the weekly token log. Belongs to the interface thread.
class WeeklyPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Overview's presenter.")
    Q_PROPERTY(bool hasLine READ hasLine NOTIFY changed)
    Q_PROPERTY(QString median READ median NOTIFY changed)
    Q_PROPERTY(QString medianCaption READ medianCaption NOTIFY changed)
    Q_PROPERTY(QString tokensPerPR READ tokensPerPR NOTIFY changed)
    Q_PROPERTY(QString tokensPerPRCaption READ tokensPerPRCaption NOTIFY changed)
    Q_PROPERTY(QString window READ window NOTIFY changed)
    Q_PROPERTY(QString recorded READ recorded NOTIFY changed)
    Q_PROPERTY(QString targets READ targets CONSTANT)

public:
    explicit WeeklyPresenter(TextLocale locale) : m_locale(std::move(locale)) {}

    /// Reads the log once, in the background, and shows its line. Gives up on a disk that does not
    /// answer within half a minute.
    void load(const std::filesystem::path &log, const std::shared_ptr<TaskDispatcher> &dispatcher);

    void show(const std::optional<WeeklyKPILine> &line);

    /// Whether the log has a line; the texts below are empty otherwise.
    [[nodiscard]] bool hasLine() const noexcept { return m_hasLine; }

    /// The figures in tokens, each with its distance from its target.
    [[nodiscard]] QString median() const { return m_median.value; }
    [[nodiscard]] QString medianCaption() const { return m_median.caption; }
    [[nodiscard]] QString tokensPerPR() const { return m_tokensPerPR.value; }
    [[nodiscard]] QString tokensPerPRCaption() const { return m_tokensPerPR.caption; }

    [[nodiscard]] QString window() const { return m_window; }
    [[nodiscard]] QString recorded() const { return m_recorded; }

    /// Where the targets come from.
    [[nodiscard]] QString targets() const;

Q_SIGNALS:
    void changed();

private:
    struct Figure
    {
        QString value;
        QString caption;
    };
    [[nodiscard]] Figure figure(std::int64_t tokens, std::int64_t delta) const;

    TextLocale m_locale;
    bool m_hasLine = false;
    Figure m_median;
    Figure m_tokensPerPR;
    QString m_window;
    QString m_recorded;
};

} // namespace Loadwick
