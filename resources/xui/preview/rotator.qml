// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.3
import "cubefaces.js" as Cube

// The rotation control: a compass that shows and sets the yaw, with an arrow on each side.
Item {
    id: rotator

    property real yaw: 0
    property real step: 15

    signal turned(real yawStep, real pitchStep)
    signal yawChosen(real yaw)
    signal straightened()

    implicitWidth: 120
    implicitHeight: 120
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Viewing direction")

    Repeater {
        model: [
            { x: 0, y: -1, name: qsTr("Look up") },
            { x: 1, y: 0, name: qsTr("Turn right") },
            { x: 0, y: 1, name: qsTr("Look down") },
            { x: -1, y: 0, name: qsTr("Turn left") }
        ]

        Text {
            x: (1 + modelData.x) * (rotator.width - width) / 2
            y: (1 + modelData.y) * (rotator.height - height) / 2
            rotation: modelData.x * 90 + (modelData.y > 0 ? 180 : 0)
            width: 20
            height: 20
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pixelSize: 16
            color: arrowArea.containsMouse ? "#ffffff" : "#4b97d6"
            style: Text.Outline
            styleColor: "#1d4f7c"
            text: "\u25b2"
            Accessible.role: Accessible.Button
            Accessible.name: modelData.name
            Accessible.onPressAction: rotator.turned(modelData.x * rotator.step, -modelData.y * rotator.step)

            MouseArea {
                id: arrowArea

                anchors.fill: parent
                hoverEnabled: true
                onClicked: rotator.turned(modelData.x * rotator.step, -modelData.y * rotator.step)
            }
        }
    }

    Image {
        id: compass

        anchors.centerIn: parent
        width: rotator.width - 48
        height: width
        source: "qrc:/UI/compass_background.png"

        Image {
            anchors.fill: parent
            source: "qrc:/UI/compass_arrow.png"
            rotation: rotator.yaw
        }

        Image {
            anchors.fill: parent
            source: "qrc:/UI/compass_reflect.png"
        }

        MouseArea {
            anchors.fill: parent
            onPositionChanged: rotator.yawChosen(direction(mouse))
            onClicked: rotator.yawChosen(direction(mouse))
            onDoubleClicked: rotator.straightened()

            function direction(mouse)
            {
                return Cube.wrapYaw(Math.atan2(mouse.x - width / 2, height / 2 - mouse.y) * 180 / Math.PI);
            }
        }
    }
}
