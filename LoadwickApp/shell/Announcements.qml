import QtQuick
import Loadwick

// What a screen reader speaks although it belongs to no focused item. It speaks a notification that
// appears, but neither a name that changes nor an alert.
Item {
    id: announcements

    required property ContentPresenter content
    required property OverviewPresenter overview
    required property OnboardingPresenter onboarding
    // Each announcement has an item of its own, kept this long: a slow reader asks for its words when
    // others have already followed.
    property int keptMilliseconds: 10000

    objectName: "announcements"

    Component {
        id: notification

        Item {
            id: one

            required property string words

            visible: false
            Accessible.role: Accessible.Notification
            Accessible.name: one.words
            Component.onCompleted: one.visible = true
        }
    }
    Connections {
        target: Announcer

        function onAnnounced(words) {
            notification.createObject(announcements, { words: words }).destroy(announcements.keptMilliseconds);
        }
    }
    Connections {
        target: announcements.content

        function onSelectionChanged() { Announcer.announce(announcements.content.selectionWords); }
    }
    Connections {
        target: announcements.overview

        function onChanged() { Announcer.announce(announcements.overview.stateWords); }
    }
    Connections {
        target: announcements.onboarding

        function onMoved() {
            if (announcements.onboarding.isPresented && !announcements.onboarding.isFinished)
                Announcer.announce(announcements.onboarding.stepWords);
        }
    }
}
