import QtQuick
import QtQuick.Layouts
import Loadwick
import LoadwickGallery

// Long lists: one at rest, one of which something beside it speaks.
RowLayout {
    id: lists

    // What scrolls the gallery.
    required property Flickable viewport

    spacing: AppTheme.cardSpace

    component Ranked: ReportSurface {
        id: card

        required property Flickable viewport
        property alias markedIndex: list.markedIndex

        Layout.fillWidth: true
        Layout.preferredWidth: 1

        LongList {
            id: list

            Layout.fillWidth: true
            model: GallerySamples.leaderboard
            viewport: card.viewport
            rowHeight: AppTheme.listRowHeight
            delegate: LeaderboardRow { }
        }
    }

    Ranked { viewport: lists.viewport }
    Ranked { viewport: lists.viewport; markedIndex: 2 }
}
