import QtQuick
import QtQuick.Layouts
import Loadwick

// The recorded totals of one repository over time.
PageColumn {
    id: page

    required property TrendsPresenter trends

    PageHeader {
        Layout.fillWidth: true
        title: "Trends"
        detail: page.trends.detail
    }
    ReportSurface {
        Layout.fillWidth: true
        spacing: AppTheme.tightSpace
        visible: page.trends.emptyText.length > 0

        PlainLabel {
            Layout.fillWidth: true
            text: page.trends.emptyTitle
            font: AppTheme.headlineFont
            wrapMode: Text.Wrap
            visible: page.trends.emptyTitle.length > 0
        }
        PlainLabel {
            Layout.fillWidth: true
            text: page.trends.emptyText
            secondary: true
            wrapMode: Text.Wrap
        }
    }
}
