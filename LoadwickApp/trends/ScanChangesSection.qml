import QtQuick
import QtQuick.Layouts
import Loadwick

// Two recorded scans of the repository side by side: the totals, and every category that changed.
ColumnLayout {
    id: section

    required property ScanChangesPresenter changes
    required property Flickable viewport
    // The inner width of the card: what the layouts make of it comes too late for the rows' height.
    required property real room
    // Bars get what the other columns leave, up to a quarter. With too little they are below.
    readonly property real trackWidth: Math.min(Math.round(section.room / 4), section.room - AppTheme.scaled(256) - 3 * section.figureWidth - 4 * AppTheme.cardSpace)
    readonly property bool isNarrow: section.trackWidth < AppTheme.scaled(104)
    readonly property real figureWidth: Math.ceil(Math.max(widest.advanceWidth, longestHeading.advanceWidth))
    readonly property real rowHeight: AppTheme.scaled(section.isNarrow ? 48 : 32)

    function announce() { Announcer.announce(section.changes.rows.text(0, "sentence")); }

    // On the totals, whichever row the keys had reached.
    function takeFocus() {
        rows.begin();
        rows.forceActiveFocus(Qt.TabFocusReason);
    }

    spacing: AppTheme.mediumSpace

    Hairline { Layout.fillWidth: true }
    // Anchored: a row laid out first at the width of its words may keep that width.
    Item {
        Layout.fillWidth: true
        Layout.topMargin: AppTheme.tightSpace
        implicitHeight: heading.implicitHeight

        SectionHeader {
            id: heading

            anchors.left: parent.left
            anchors.right: pill.visible ? pill.left : parent.right
            anchors.rightMargin: pill.visible ? AppTheme.cardSpace : 0
            title: qsTr("What changed")
            titleFont: AppTheme.emphasisFont
            detail: qsTr("Choose two scans here, or the later one in the chart above.")
        }
        ProvenancePill {
            id: pill

            anchors.right: parent.right
            label: qsTr("Categories: local estimates")
            visible: section.changes.whyOnlyTotals.length === 0
        }
    }
    SideBySide {
        Layout.fillWidth: true
        columnSpacing: AppTheme.cardSpace
        rowSpacing: AppTheme.smallSpace

        ScanDateButton {
            objectName: "earlier"
            Layout.fillWidth: true
            caption: qsTr("Before")
            date: section.changes.earlierDate
            sentence: section.changes.earlierSentence
            scans: section.changes.earlierScans
            row: section.changes.earlierRow
            onChosen: row => {
                section.changes.chooseEarlier(row);
                section.announce();
            }
        }
        ScanDateButton {
            objectName: "later"
            Layout.fillWidth: true
            caption: qsTr("After")
            isFilled: true
            date: section.changes.laterDate
            sentence: section.changes.laterSentence
            scans: section.changes.laterScans
            row: section.changes.laterRow
            onChosen: row => {
                section.changes.chooseLater(row);
                section.announce();
            }
        }
    }
    ColumnLayout {
        Layout.fillWidth: true
        spacing: 0

        ChangeRow {
            Layout.fillWidth: true
            implicitHeight: section.rowHeight
            style: look
            isHeading: true
            name: qsTr("Category")
            before: qsTr("Before")
            after: qsTr("After")
            difference: qsTr("Difference")
        }
        Hairline { Layout.fillWidth: true }
        ScanChangeList {
            id: rows

            objectName: "changes"
            Layout.fillWidth: true
            style: look
            model: section.changes.rows
            viewport: section.viewport
            rowHeight: section.rowHeight
            Accessible.name: qsTr("What changed")
            onCopyRequested: index => section.changes.rows.copy(index, "sentence")
        }
    }
    PlainLabel {
        Layout.fillWidth: true
        text: section.changes.unchanged
        wrapMode: Text.Wrap
        visible: text.length > 0
    }
    PlainLabel {
        Layout.fillWidth: true
        text: section.changes.whyOnlyTotals
        wrapMode: Text.Wrap
        visible: text.length > 0
    }
    PlainLabel {
        Layout.fillWidth: true
        text: qsTr("Each session estimates its own categories, so their differences need not add up to the difference of the totals, which Claude measured.")
        font: AppTheme.captionFont
        secondary: true
        wrapMode: Text.Wrap
        visible: section.changes.whyOnlyTotals.length === 0
    }

    Binding { section.changes.isShown: section.visible }
    ChangeStyle {
        id: look

        font: AppTheme.bodyFont
        totalFont: AppTheme.bodyStrongFont
        noteFont: AppTheme.captionFont
        headingFont: AppTheme.captionStrongFont
        text: AppTheme.text
        secondaryText: AppTheme.secondaryText
        grewText: AppTheme.bandHeavyText
        shrankText: AppTheme.bandLeanText
        grewBar: AppTheme.bandHeavy
        shrankBar: AppTheme.bandLean
        line: AppTheme.separator
        figureWidth: section.figureWidth
        trackWidth: section.trackWidth
        isNarrow: section.isNarrow
        isMirrored: section.LayoutMirroring.enabled
    }
    TextMetrics {
        id: widest
        font: AppTheme.bodyStrongFont
        text: section.changes.widestFigure
    }
    TextMetrics {
        id: longestHeading
        font: AppTheme.captionStrongFont
        text: qsTr("Difference")
    }
}
