// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1 as Controls
import QtQuick.Controls.Styles 1.1

Controls.Slider {
    style: SliderStyle {
        groove: Rectangle {
            implicitWidth: 120
            implicitHeight: 4
            radius: 2
            color: "#2b2b2b"
            border.color: "#1a1a1a"

            Rectangle {
                width: styleData.handlePosition
                height: parent.height
                radius: parent.radius
                color: control.enabled ? "#4b97d6" : "#575757"
            }
        }
        handle: Rectangle {
            implicitWidth: 14
            implicitHeight: 14
            radius: 7
            border.color: control.activeFocus ? "#4b97d6" : "#1a1a1a"
            color: !control.enabled ? "#808080" : control.pressed ? "#a6a6a6" : control.hovered ? "#d0d0d0" : "#bdbdbd"
        }
    }
}
