// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1 as Controls
import QtQuick.Controls.Styles 1.1

Controls.SpinBox {
    style: SpinBoxStyle {
        textColor: control.enabled ? "#e6e6e6" : "#808080"
        selectionColor: "#4b97d6"
        selectedTextColor: "#ffffff"
        background: Rectangle {
            implicitWidth: 64
            implicitHeight: 20
            radius: 2
            color: "#363636"
            border.color: control.activeFocus ? "#4b97d6" : "#1a1a1a"
        }
        incrementControl: Item {
            implicitWidth: 16

            Text {
                anchors.centerIn: parent
                renderType: Text.NativeRendering
                font.pixelSize: 8
                color: styleData.upHovered ? "#ffffff" : "#a6a6a6"
                text: "\u25b2"
            }
        }
        decrementControl: Item {
            implicitWidth: 16

            Text {
                anchors.centerIn: parent
                renderType: Text.NativeRendering
                font.pixelSize: 8
                color: styleData.downHovered ? "#ffffff" : "#a6a6a6"
                text: "\u25bc"
            }
        }
    }
}
