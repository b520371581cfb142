import QtQuick
import QtQuick.Templates
import QtQuick.Layouts
import Loadwick

// Every component in every state, in one scheme, on one long page.
Rectangle {
    id: gallery

    // One kind of component under its name.
    component GallerySection: ColumnLayout {
        id: section

        required property string title

        Layout.fillWidth: true
        spacing: AppTheme.cardSpace

        PlainLabel { text: section.title; font: AppTheme.title2Font }
    }

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
            GallerySection { title: "Rows and lists"; GalleryRows { Layout.fillWidth: true; viewport: scroller } }
            GallerySection { title: "Figures and meters"; GalleryFigures { Layout.fillWidth: true } }
            GallerySection { title: "Charts"; GalleryCharts { Layout.fillWidth: true; viewport: scroller } }
            GallerySection { title: "Cards and states of a page"; GalleryCards { Layout.fillWidth: true } }
            GallerySection { title: "Dialogs and sheets"; GalleryDialogs { Layout.fillWidth: true } }
            GallerySection { title: "Symbols"; GallerySymbols { Layout.fillWidth: true } }
        }
    }
}
