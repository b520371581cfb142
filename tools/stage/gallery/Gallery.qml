import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Loadwick

// Every component in every state, in one scheme, on one long page.
Rectangle {
    id: gallery

    implicitWidth: 1180
    implicitHeight: column.implicitHeight + 2 * AppTheme.pageMargin
    color: AppTheme.window

    Flickable {
        id: scroller

        anchors.fill: parent
        contentHeight: gallery.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ThinScrollBar { }

        ColumnLayout {
            id: column

            x: AppTheme.pageMargin
            y: AppTheme.pageMargin
            width: scroller.width - 2 * AppTheme.pageMargin
            spacing: AppTheme.wideSpace

            PlainLabel { text: "Gallery"; font: AppTheme.largeTitleFont }
            GallerySection { title: "Type and colour"; GalleryType { Layout.fillWidth: true } }
            GallerySection { title: "Buttons"; GalleryButtons { Layout.fillWidth: true } }
            GallerySection { title: "Marks"; GalleryMarks { Layout.fillWidth: true } }
            GallerySection { title: "Rows"; GalleryRows { Layout.fillWidth: true } }
            GallerySection { title: "Lists"; GalleryLists { Layout.fillWidth: true; viewport: scroller } }
            GallerySection { title: "Figures"; GalleryFigures { Layout.fillWidth: true } }
            GallerySection { title: "Meters"; GalleryMeters { Layout.fillWidth: true } }
            GallerySection { title: "Charts"; GalleryCharts { Layout.fillWidth: true } }
            GallerySection { title: "Cards and sections"; GalleryCards { Layout.fillWidth: true } }
            GallerySection { title: "Dialogs and sheets"; GalleryDialogs { Layout.fillWidth: true } }
            GallerySection { title: "States of a page"; GalleryStates { Layout.fillWidth: true } }
            GallerySection { title: "Symbols"; GallerySymbols { Layout.fillWidth: true } }
        }
    }
}
