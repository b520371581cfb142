import QtQuick
import QtQuick.Layouts
import Loadwick

// The total and who measured it, its band and why, and its position on the scale.
ReportSurface {
    id: card

    required property BandPresenter band
    // Null: nothing is recorded here.
    property LatestChangePresenter change: null
    readonly property color bandColor: AppTheme.bandTexts[card.band.band]

    spacing: AppTheme.cardSpace

    SideBySide {
        Layout.fillWidth: true

        ColumnLayout {
            Layout.fillWidth: true
            Layout.minimumWidth: AppTheme.copyMinimumWidth
            Layout.alignment: Qt.AlignVCenter
            spacing: AppTheme.smallSpace

            RowLayout {
                Layout.fillWidth: true
                spacing: AppTheme.smallSpace

                Symbol {
                    Layout.preferredWidth: 20
                    Layout.preferredHeight: 20
                    name: "scalemass"
                    tint: card.bandColor
                }
                TitleLabel {
                    Layout.fillWidth: true
                    text: card.band.title
                    font: AppTheme.title2Font
                    color: card.bandColor
                }
            }
            PlainLabel {
                Layout.fillWidth: true
                // A line does not end inside the band's range.
                text: card.band.sentence.replace("–", "\u2060–\u2060")
                wrapMode: Text.Wrap
                Accessible.name: card.band.sentence
            }
            PlainLabel {
                Layout.fillWidth: true
                text: card.band.zeroNote
                wrapMode: Text.Wrap
                visible: card.band.zeroNote.length > 0
            }
        }
        ColumnLayout {
            spacing: 0

            RowLayout {
                spacing: AppTheme.smallSpace

                PlainLabel {
                    Layout.alignment: Qt.AlignBaseline
                    text: card.band.total
                    font: AppTheme.heroMetricFont
                }
                PlainLabel {
                    Layout.alignment: Qt.AlignBaseline
                    text: qsTr("tokens")
                    font: AppTheme.title3Font
                    secondary: true
                }
            }
            PlainLabel {
                text: qsTr("Authoritative · measured by Claude")
                font: AppTheme.subheadlineFont
                secondary: true
            }
            Loader {
                id: latestChange

                Layout.topMargin: AppTheme.smallSpace
                active: card.change !== null && card.change.isKnown
                visible: active
                Component.onCompleted: latestChange.setSource("LatestChange.qml", { change: card.change })
            }
        }
    }
    BandMeter {
        Layout.fillWidth: true
        band: card.band
    }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Why these bands?")
        // A note, not a section of its own.
        titleFont: AppTheme.subheadlineStrongFont

        SelectableText {
            Layout.fillWidth: true
            text: card.band.anchorNote
            secondary: true
        }
    }
}
