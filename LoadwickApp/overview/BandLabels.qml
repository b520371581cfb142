import QtQuick
import Loadwick

// Names the bands under their segments, as far as there is room.
Item {
    id: labels

    required property BandPresenter band
    required property BandMeterPlaces places
    readonly property list<real> widths: [lean.implicitWidth, heavy.implicitWidth, excessive.implicitWidth]

    component BandLabel: PlainLabel {
        id: label

        required property BandPresenter band
        required property BandMeterPlaces places
        // In the order of the bands.
        required property int place
        readonly property bool isCurrent: label.band.band === label.place

        text: label.band.bands[label.place] ?? ""
        font: label.isCurrent ? AppTheme.captionStrongFont : AppTheme.captionFont
        color: label.isCurrent ? AppTheme.bandTexts[label.place] : AppTheme.secondaryText
        x: Math.round(label.places.labelLefts[label.place])
        visible: label.places.labelsShown[label.place]
        // The meter as a whole says what it shows.
        Accessible.ignored: true
    }

    implicitHeight: lean.implicitHeight

    BandLabel { id: lean; place: 0; band: labels.band; places: labels.places }
    BandLabel { id: heavy; place: 1; band: labels.band; places: labels.places }
    BandLabel { id: excessive; place: 2; band: labels.band; places: labels.places }
}
