#pragma once

#include <cstdint>

#include <QList>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "report/OpinionBand.h"
#include "text/TextLocale.h"

namespace Loadwick {

struct ScanReport;

/// How much of its band scale a total leaves free, in whole hundredths, rounded down: 100 for a
/// total of 0, 0 at the scale's end. An illustration of the total, not a second measurement.
[[nodiscard]] int headroomScore(std::int64_t total) noexcept;

/// The total of a report, the band it falls in and the headroom it leaves, for the cards that
/// show them. The total is 0 before the first report. Belongs to the interface thread.
class BandPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the Overview's presenter.")
    /// The index of the band in its order: 0 lean, 1 heavy, 2 excessive.
    Q_PROPERTY(int band READ band NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString sentence READ sentence NOTIFY changed)
    Q_PROPERTY(QString zeroNote READ zeroNote NOTIFY changed)
    Q_PROPERTY(QString total READ total NOTIFY changed)
    Q_PROPERTY(QStringList bands READ bands CONSTANT)
    Q_PROPERTY(QString meterSummary READ meterSummary NOTIFY changed)
    Q_PROPERTY(QString anchorNote READ anchorNote CONSTANT)
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

    [[nodiscard]] int band() const noexcept { return OpinionBand::Value(m_band); }
    /// Names the band's startup context.
    [[nodiscard]] QString title() const;
    /// Says where the total falls.
    [[nodiscard]] QString sentence() const;
    /// Says why the total can be 0; empty for any other, and before the first report.
    [[nodiscard]] QString zeroNote() const { return m_zeroNote; }
    /// Tokens.
    [[nodiscard]] QString total() const;
    /// The names of all bands, from lean to excessive.
    [[nodiscard]] static QStringList bands();
    /// The band meter in words, for a screen reader.
    [[nodiscard]] QString meterSummary() const;
    /// The reason for the thresholds.
    [[nodiscard]] static QString anchorNote();
    [[nodiscard]] qreal position() const;
    [[nodiscard]] QList<qreal> thresholds() const;

    [[nodiscard]] int score() const noexcept { return headroomScore(m_total); }
    [[nodiscard]] QString scoreText() const;
    /// The gauge in words, for a screen reader.
    [[nodiscard]] QString scoreSummary() const;
    /// Says what the score is a part of.
    [[nodiscard]] QString scoreDetail() const;
    /// Says what the score is derived from.
    [[nodiscard]] QString scoreCaption() const;

Q_SIGNALS:
    /// Emitted for each report, even one that equals the last.
    void changed();

private:
    [[nodiscard]] QString grouped(std::int64_t number) const;
    [[nodiscard]] QString scaleEnd() const;
    [[nodiscard]] QString bandTitle() const;

    TextLocale m_locale;
    std::int64_t m_total = 0;
    OpinionBand m_band = OpinionBand::lean;
    QString m_zeroNote;
};

} // namespace Loadwick
