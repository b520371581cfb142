import QtQuick
import QtQuick.Layouts
import Loadwick

// The one number, and the band it falls in.
ReportSurface {
    id: card

    required property OverviewPresenter overview

    GridLayout {
        Layout.fillWidth: true
        columns: card.width < 560 ? 1 : 2
        columnSpacing: AppTheme.wideSpace
        rowSpacing: AppTheme.cardSpace

        BandLead {
            Layout.fillWidth: true
            Layout.alignment: Qt.AlignVCenter
            overview: card.overview
        }
        TotalMetric { overview: card.overview }
    }
}
