import QtQuick
import Loadwick

// Cuts the bar where one band ends and the next begins.
Item {
    id: ticks

    required property BandMeterPlaces places

    component Tick: Rectangle {
        id: tick

        required property real place

        x: Math.round(tick.place) - tick.width / 2
        width: AppTheme.meterTickWidth
        color: AppTheme.surface
    }

    Tick { place: ticks.places.ticks[0]; height: ticks.height }
    Tick { place: ticks.places.ticks[1]; height: ticks.height }
}
