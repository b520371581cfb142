#include "support/ComparePage.h"

#include <algorithm>
#include <utility>

#include <QQmlEngine>
#include <QRegularExpression>
#include <QTest>

#include "support/VisualItems.h"
#include "theme/ApplicationStyle.h"

namespace Loadwick {

ComparePage::ComparePage()
    : m_compare(m_scanning.model, TextLocale()), m_export({}, m_saver, nullptr)
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("Error|unavailable|Cyclic")));
    ApplicationStyle::addModulePath(*m_view.engine());
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.setInitialProperties({{QStringLiteral("compare"), QVariant::fromValue(&m_compare)},
                                 {QStringLiteral("exporter"), QVariant::fromValue(&m_export)}});
    m_view.setSource(QUrl(QStringLiteral("qrc:/qt/qml/Loadwick/CompareView.qml")));
    m_view.resize(930, 700);
    m_view.show();
    if (!QTest::qWaitForWindowExposed(&m_view))
        qFatal("The page does not show.");
}

std::unique_ptr<ColumnPresenter> ComparePage::columnAt(int index)
{
    auto card = std::make_unique<ColumnPresenter>();
    card->setNumber(index);
    card->setCompare(&m_compare);
    return card;
}

void ComparePage::record(std::vector<RecordedScan> scans)
{
    m_scanning.model.history().set(std::move(scans));
    QTest::qWait(20);
    if (!QTest::qWaitFor([this] { return hasAllRows(); }))
        qFatal("The rows below the page do not follow.");
}

bool ComparePage::hasAllRows() const
{
    return std::ranges::all_of(items("rows"), [](QQuickItem *rows) {
        const int count = rows->property("count").toInt();
        QQuickItem *last = nullptr;
        QMetaObject::invokeMethod(rows, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, last),
                                  Q_ARG(int, count - 1));
        return !rows->property("isShort").toBool() || count == 0 || last != nullptr;
    });
}

QList<QQuickItem *> ComparePage::items(const char *name) const
{
    return visibleItems(m_view.rootObject(), QString::fromLatin1(name));
}

QList<BarRow *> ComparePage::barsBelow(QQuickItem *root)
{
    QList<BarRow *> bars;
    for (QQuickItem *item : visibleItems(root, QStringLiteral("bar")))
        bars << qobject_cast<BarRow *>(item);
    return bars;
}

QList<QQuickItem *> ComparePage::cards() const
{
    QList<QQuickItem *> made;
    for (const QQuickItem *cell : items("cell"))
        if (auto *card = cell->property("item").value<QQuickItem *>())
            made << card;
    return made;
}

QQuickItem *ComparePage::viewport() const
{
    return items("leaderboard").constFirst()->property("viewport").value<QQuickItem *>();
}

} // namespace Loadwick
