import QtQuick
import Loadwick

// What became of the last save of a page.
PlainLabel {
    id: outcome

    // Null: nothing can be saved here.
    property PageExport exporter: null

    text: outcome.exporter ? outcome.exporter.outcome : ""
    font: AppTheme.captionFont
    color: outcome.exporter && outcome.exporter.failed ? AppTheme.bandExcessiveText : AppTheme.secondaryText
    wrapMode: Text.Wrap

    Connections {
        target: outcome.exporter

        function onChanged() { Announcer.announce(outcome.exporter.outcome); }
    }
}
