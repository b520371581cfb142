#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <memory>
#include <string>

#include <QMetaProperty>
#include <QRegularExpression>
#include <QStringList>

#include "base/QtText.h"
#include "fuzz/FuzzTarget.h"
#include "fuzz/window/ReportInput.h"
#include "model/ScanModel.h"
#include "overview/OverviewPresenter.h"
#include "support/ScanFakes.h"
#include "support/SteppingDispatcher.h"

namespace Loadwick {

namespace {

/// The Overview in one locale, over a model that never scans.
struct Page
{
    explicit Page(TextLocale locale)
        : model({.probeRunner = std::make_shared<FakeProbe>(),
                 .instructionScanner = std::make_shared<FakeInstructionScanner>(),
                 .dispatcher = std::make_shared<SteppingDispatcher>()}),
          overview(model, std::move(locale), &std::chrono::steady_clock::now, "/home/someone")
    {}

    static Page &in(const TextLocale &locale)
    {
        static std::map<std::string, std::unique_ptr<Page>> pages;
        auto &page = pages[locale.numbers];
        if (!page)
            page = std::make_unique<Page>(locale);
        return *page;
    }

    void show(const ReportInput &input)
    {
        model.state().set(ScanState::result(input.report));
        model.history().set(input.history);
        overview.weekly()->show(input.weekly);
    }

    ScanModel model;
    OverviewPresenter overview;
};

void addTextsOf(const QObject &object, QStringList &texts);

void addTextsOf(const RowList &list, QStringList &texts)
{
    for (int row = 0; row < list.count(); ++row)
        for (const QByteArray &role : list.roleNames())
            texts.append(list.text(row, QString::fromLatin1(role)));
}

void addTextsOf(const QVariant &value, QStringList &texts)
{
    if (value.metaType() == QMetaType::fromType<QString>())
        texts.append(value.toString());
    else if (value.metaType() == QMetaType::fromType<QStringList>())
        texts.append(value.toStringList());
    else if (const auto *const list = qobject_cast<RowList *>(value.value<QObject *>()))
        addTextsOf(*list, texts);
    else if (const auto *const object = value.value<QObject *>())
        addTextsOf(*object, texts);
}

/// Every text of an object's properties, of its lists, and of the objects that it offers.
void addTextsOf(const QObject &object, QStringList &texts)
{
    const QMetaObject &type = *object.metaObject();
    for (int index = type.propertyOffset(); index < type.propertyCount(); ++index)
        addTextsOf(type.property(index).read(&object), texts);
}

QStringList textsOf(OverviewPresenter &overview)
{
    QStringList texts;
    addTextsOf(overview, texts);
    const BreakdownPresenter &breakdown = *overview.breakdown();
    for (int row = 0; row < breakdown.slices().size(); ++row)
        texts << breakdown.readOutTitle(row) << breakdown.readOutDetail(row)
              << breakdown.readOutSentence(row);
    return texts;
}

void checkText(const QString &text)
{
    static const QRegularExpression share(QStringLiteral("([0-9.]+)%"));
    static const QRegularExpression zero(QStringLiteral("(?<![\\w.])[-\u2212]0(\\.0*)?(?![0-9.])"));
    auto found = text.contains(QLatin1Char('%')) ? share.globalMatch(text)
                                                 : QRegularExpressionMatchIterator();
    while (found.hasNext())
        require(found.next().captured(1).toDouble() <= 100, "no share is above 100 %");
    require(!zero.match(text).hasMatch(), "no zero is negative");
}

void checkBand(const ScanReport &report, const TextLocale &locale, BandPresenter &shown)
{
    const std::int64_t total = report.total;
    const bool isLean = total < 30'000;
    const bool isExcessive = total > 60'000;
    const OpinionBand band = isLean        ? OpinionBand::lean
                             : isExcessive ? OpinionBand::excessive
                                           : OpinionBand::heavy;
    require(shown.band() == band, "the band is that of the total");
    require(shown.title().startsWith(qtText(band.title())), "the title names the band");
    require(shown.sentence().contains(qtText(band.range(locale))), "the range is the band's");
    require(shown.position() >= 0 && shown.position() <= 1, "the total is on the meter");
    require((shown.position() < shown.thresholds().at(0)) == isLean,
            "a lean total is before the first threshold");
    require((shown.position() > shown.thresholds().at(1)) == isExcessive,
            "an excessive total is behind the second threshold");
    require(shown.score() >= 0 && shown.score() <= 100, "the score is one of 100");
}

/// The part of `total` that `tokens` are, from 0 to 100.
double percentOf(std::int64_t tokens, std::int64_t total)
{
    if (total < 1)
        return 0;
    return std::clamp(static_cast<double>(tokens) / static_cast<double>(total), 0.0, 1.0) * 100;
}

void checkBreakdown(const ScanReport &report, BreakdownPresenter &shown)
{
    require(shown.rows()->count() == static_cast<int>(report.rows.size()), "every row is shown");
    std::int64_t sum = 0;
    for (std::size_t index = 0; index < report.rows.size(); ++index) {
        const SlabAttribution &row = report.rows[index];
        const QString share = shown.rows()->text(static_cast<int>(index), QStringLiteral("share"));
        const double percent = QString(share).remove(QLatin1Char('%')).toDouble();
        require(std::abs(percent - percentOf(row.tokens, report.total)) <= 0.05 + 1e-9,
                "the share is that of the row");
        require(shown.slices().at(static_cast<int>(index)) >= 0, "no slice is negative");
        sum += row.tokens;
    }
    require(report.overAttributed == (sum > std::max<std::int64_t>(report.total, 0)) ||
                report.total < 0,
            "rows beyond the total are told");
}

/// Without what a check of the texts would take for a figure of ours.
std::string withoutFigures(std::string_view input)
{
    std::string harmless(input);
    for (std::size_t index = 0; index < harmless.size(); ++index)
        if (harmless[index] == '%' || (harmless[index] == '-' && harmless[index + 1] == '0'))
            harmless[index] = '~';
    for (std::size_t sign = harmless.find("\u2212"); sign != std::string::npos;
         sign = harmless.find("\u2212"))
        harmless.erase(sign, 3);
    return harmless;
}

void checkWholeReport(std::string_view bytes)
{
    const auto input = ReportInput::of(withoutFigures(bytes));
    if (!input)
        return;
    Page &page = Page::in(input->locale);
    page.show(*input);
    require(page.overview.state() == OverviewPresenter::State::Report, "the report is shown");
    const QStringList texts = textsOf(page.overview);
    std::for_each(texts.begin(), texts.end(), checkText);
    checkBand(input->report, input->locale, *page.overview.band());
    checkBreakdown(input->report, *page.overview.breakdown());
}

const FuzzTarget target("WholeReport", checkWholeReport);

} // namespace

} // namespace Loadwick
