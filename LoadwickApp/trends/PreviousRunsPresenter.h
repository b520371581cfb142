#pragma once

#include <span>

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include "history/RecordedScan.h"
#include "trends/PreviousRunRows.h"

namespace Loadwick {

/// The card with the newest recorded scans of all repositories.
class PreviousRunsPresenter final : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the page's presenter.")
    Q_PROPERTY(QString detail READ detail NOTIFY changed)
    Q_PROPERTY(QAbstractItemModel *rows READ rows CONSTANT)

public:
    static constexpr std::size_t mostRows = 30;

    explicit PreviousRunsPresenter(const TextLocale &locale) : m_rows(locale) {}

    void show(std::span<const RecordedScan> history);

    [[nodiscard]] QString detail() const { return m_detail; }

    /// The newest scans first, `mostRows` of them at most.
    [[nodiscard]] QAbstractItemModel *rows() { return &m_rows; }

Q_SIGNALS:
    void changed();

private:
    QString m_detail;
    PreviousRunRows m_rows;
};

} // namespace Loadwick
