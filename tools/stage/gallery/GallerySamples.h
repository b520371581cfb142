#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include "compare/ComparePresenter.h"
#include "onboarding/OnboardingPresenter.h"
#include "overview/BandPresenter.h"
#include "overview/InstructionFilesPresenter.h"
#include "trends/TrendChartPresenter.h"

namespace Loadwick {

/// The data of the gallery's charts, lists and sheet: sample scans and histories.
class GallerySamples : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Loadwick::BandPresenter *zero READ zero CONSTANT)
    Q_PROPERTY(Loadwick::BandPresenter *lean READ lean CONSTANT)
    Q_PROPERTY(Loadwick::BandPresenter *heavy READ heavy CONSTANT)
    Q_PROPERTY(Loadwick::BandPresenter *excessive READ excessive CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFilesPresenter *files READ files CONSTANT)
    Q_PROPERTY(Loadwick::InstructionFilesPresenter *noFiles READ noFiles CONSTANT)
    Q_PROPERTY(Loadwick::TrendChartPresenter *manyScans READ manyScans CONSTANT)
    Q_PROPERTY(Loadwick::TrendChartPresenter *twoScans READ twoScans CONSTANT)
    Q_PROPERTY(Loadwick::TrendChartPresenter *oneScan READ oneScan CONSTANT)
    Q_PROPERTY(Loadwick::OnboardingPresenter *onboarding READ onboarding CONSTANT)
    Q_PROPERTY(Loadwick::RowList *leaderboard READ leaderboard CONSTANT)

public:
    explicit GallerySamples(QObject *parent = nullptr);

    [[nodiscard]] BandPresenter *zero() { return &m_zero; }
    [[nodiscard]] BandPresenter *lean() { return &m_lean; }
    [[nodiscard]] BandPresenter *heavy() { return &m_heavy; }
    [[nodiscard]] BandPresenter *excessive() { return &m_excessive; }
    [[nodiscard]] InstructionFilesPresenter *files() { return &m_files; }
    [[nodiscard]] InstructionFilesPresenter *noFiles() { return &m_noFiles; }
    [[nodiscard]] TrendChartPresenter *manyScans() { return &m_manyScans; }
    [[nodiscard]] TrendChartPresenter *twoScans() { return &m_twoScans; }
    [[nodiscard]] TrendChartPresenter *oneScan() { return &m_oneScan; }
    [[nodiscard]] OnboardingPresenter *onboarding() { return &m_onboarding; }
    [[nodiscard]] RowList *leaderboard() { return &m_leaderboard; }

private:
    BandPresenter m_zero;
    BandPresenter m_lean;
    BandPresenter m_heavy;
    BandPresenter m_excessive;
    InstructionFilesPresenter m_files;
    InstructionFilesPresenter m_noFiles;
    TrendChartPresenter m_manyScans;
    TrendChartPresenter m_twoScans;
    TrendChartPresenter m_oneScan;
    OnboardingPresenter m_onboarding;
    LeaderboardRows m_leaderboard;
};

} // namespace Loadwick
