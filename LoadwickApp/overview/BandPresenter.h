#pragma once

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "overview/BandTexts.h"
#include "report/OpinionBand.h"
#include "report/ScanReport.h"
#include "text/TextLocale.h"

namespace Loadwick {

/// The total of a report, the band it falls in and the room it leaves, for the cards that show
/// them. Before the first report everything is empty. Belongs to the interface thread.
class BandPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Overview's presenter.")
    /// The place of the band in its order: 0 lean, 1 heavy, 2 excessive.
    Q_PROPERTY(int band READ band NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QStringList bands READ bands NOTIFY changed)
    Q_PROPERTY(QString meterSummary READ meterSummary NOTIFY changed)
    Q_PROPERTY(QString anchorNote READ anchorNote NOTIFY changed)
    /// Fractions of the band meter: of the total, and of the two thresholds from left to right.
    Q_PROPERTY(qreal position READ position NOTIFY changed)
    Q_PROPERTY(QList<qreal> thresholds READ thresholds NOTIFY changed)
    /// 0 to 100.
    Q_PROPERTY(int score READ score NOTIFY changed)
    Q_PROPERTY(QString scoreText READ scoreText NOTIFY changed)
    Q_PROPERTY(QString scoreSummary READ scoreSummary NOTIFY changed)
    Q_PROPERTY(QString scoreDetail READ scoreDetail NOTIFY changed)
    Q_PROPERTY(QString scoreCaption READ scoreCaption NOTIFY changed)

public:
    explicit BandPresenter(TextLocale locale, QObject *parent = nullptr);

    void show(const ScanReport &report);

    [[nodiscard]] int band() const noexcept { return m_band; }
    [[nodiscard]] QString title() const { return m_texts.title; }
    [[nodiscard]] QString sentence() const { return m_texts.sentence; }
    [[nodiscard]] QString total() const { return m_texts.total; }
    [[nodiscard]] QStringList bands() const { return m_texts.bands; }
    [[nodiscard]] QString meterSummary() const { return m_texts.meterSummary; }
    [[nodiscard]] QString anchorNote() const { return m_texts.anchorNote; }
    [[nodiscard]] qreal position() const noexcept { return m_position; }
    [[nodiscard]] QList<qreal> thresholds() const { return m_thresholds; }
    [[nodiscard]] int score() const noexcept { return m_score; }
    [[nodiscard]] QString scoreText() const { return m_texts.score; }
    [[nodiscard]] QString scoreSummary() const { return m_texts.scoreSummary; }
    [[nodiscard]] QString scoreDetail() const { return m_texts.scoreDetail; }
    [[nodiscard]] QString scoreCaption() const { return m_texts.scoreCaption; }

Q_SIGNALS:
    /// Once for each report, also for one that equals the last.
    void changed();

private:
    TextLocale m_locale;
    BandTexts m_texts;
    OpinionBand::Value m_band = OpinionBand::lean;
    double m_position = 0;
    QList<qreal> m_thresholds;
    int m_score = 0;
};

} // namespace Loadwick
