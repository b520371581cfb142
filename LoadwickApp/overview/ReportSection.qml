import QtQuick
import QtQuick.Layouts
import Loadwick

// The scan's details, and a summary to copy.
ReportSurface {
    id: section

    required property OverviewPresenter overview
    required property PageExport exporter

    RowLayout {
        Layout.alignment: Qt.AlignRight
        spacing: AppTheme.mediumSpace

        MomentaryNote {
            id: copied
            words: qsTr("Copied")
        }
        PushButton {
            title: qsTr("Copy Summary")
            symbol: "doc.on.doc"
            outlined: true
            onClicked: {
                section.overview.copySummary();
                copied.show();
            }
        }
    }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Session details")

        ColumnLayout {
            Layout.fillWidth: true
            spacing: AppTheme.smallSpace

            Repeater {
                model: section.overview.sessionDetails

                RowLayout {
                    id: row

                    required property string label
                    required property string value

                    Layout.fillWidth: true
                    spacing: AppTheme.smallSpace

                    PlainLabel {
                        Layout.preferredWidth: AppTheme.scaled(132)
                        Layout.alignment: Qt.AlignTop
                        text: row.label
                        font: AppTheme.subheadlineStrongFont
                    }
                    SelectableText {
                        Layout.fillWidth: true
                        text: row.value
                    }
                }
            }
            // What the figures mean.
            Repeater {
                model: section.overview.notes

                PlainLabel {
                    id: note

                    required property int index
                    required property string modelData

                    Layout.fillWidth: true
                    Layout.topMargin: note.index === 0 ? AppTheme.smallSpace : 0
                    text: note.modelData
                    font: AppTheme.captionFont
                    secondary: true
                    wrapMode: Text.Wrap
                }
            }
        }
    }
    Hairline { Layout.fillWidth: true }
    CollapsibleSection {
        Layout.fillWidth: true
        title: qsTr("Full report")
        detail: qsTr("A factual, copyable summary of this one Claude Code startup-context scan.")

        SelectableText {
            Layout.fillWidth: true
            text: section.overview.summary
        }
    }
    RowLayout {
        Layout.fillWidth: true
        spacing: AppTheme.mediumSpace

        SaveOutcome {
            Layout.fillWidth: true
            exporter: section.exporter
        }
        PushButton {
            title: qsTr("Save Data…")
            outlined: true
            onClicked: section.exporter.saveTable()
        }
        PushButton {
            title: qsTr("Save Report…")
            outlined: true
            onClicked: section.exporter.saveReport()
        }
    }
}
