// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.3
import "cubefaces.js" as Cube

// A panorama on the six faces of a cube. Drag to look around, turn the wheel to zoom.
Rectangle {
    id: preview

    // One picture URL per face: front, right, back, left, up, down.
    property var pictures: ({})
    property real yaw: 0 // degrees, 0 to 360
    property real pitch: 0 // degrees, -90 to 90
    property real fieldOfView: 90 // degrees across the view

    implicitWidth: 640
    implicitHeight: 400
    clip: true
    color: "#2b2b2b"
    focus: true

    function turn(yawStep, pitchStep)
    {
        yaw = Cube.wrapYaw(yaw + yawStep);
        pitch = Cube.clamp(pitch + pitchStep, -90, 90);
    }

    function zoom(factor)
    {
        fieldOfView = Cube.clamp(fieldOfView * factor, Cube.minFieldOfView, Cube.maxFieldOfView);
    }

    Keys.onLeftPressed: turn(-5, 0)
    Keys.onRightPressed: turn(5, 0)
    Keys.onUpPressed: turn(0, 5)
    Keys.onDownPressed: turn(0, -5)
    Keys.onPressed: {
        if (event.key === Qt.Key_Plus || event.key === Qt.Key_Minus) {
            zoom(event.key === Qt.Key_Plus ? 0.9 : 1 / 0.9);
            event.accepted = true;
        }
    }

    Repeater {
        model: Cube.faces

        CubeFace {
            face: modelData
            source: preview.pictures[modelData.name] || ""
            yaw: preview.yaw
            pitch: preview.pitch
            fieldOfView: preview.fieldOfView
            viewport: Qt.size(preview.width, preview.height)
        }
    }

    Text {
        anchors.centerIn: parent
        visible: Object.keys(preview.pictures).length === 0
        color: "#bdbdbd"
        text: qsTr("There is no panorama to show yet.")
    }

    MouseArea {
        property point last

        anchors.fill: parent
        onPressed: {
            preview.forceActiveFocus();
            last = Qt.point(mouse.x, mouse.y);
        }
        onPositionChanged: {
            var degreesPerPixel = preview.fieldOfView / preview.width;
            preview.turn((last.x - mouse.x) * degreesPerPixel, (mouse.y - last.y) * degreesPerPixel);
            last = Qt.point(mouse.x, mouse.y);
        }
        onWheel: preview.zoom(wheel.angleDelta.y > 0 ? 0.9 : 1 / 0.9)
    }

    Loader {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 8
        source: "rotator.qml"
        onLoaded: {
            item.yaw = Qt.binding(function () { return preview.yaw; });
            item.turned.connect(preview.turn);
            item.yawChosen.connect(function (chosen) { preview.yaw = chosen; });
            item.straightened.connect(function () {
                preview.yaw = 0;
                preview.pitch = 0;
            });
        }
    }
}
