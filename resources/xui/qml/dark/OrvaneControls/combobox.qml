// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1 as Controls
import QtQuick.Controls.Styles 1.1

Controls.ComboBox {
    style: ComboBoxStyle {
        padding {
            top: 0
            bottom: 0
            left: 8
            right: 20
        }
        textColor: control.enabled ? "#e6e6e6" : "#808080"
        selectionColor: "#4b97d6"
        selectedTextColor: "#ffffff"
        label: Text {
            renderType: Text.NativeRendering
            verticalAlignment: Text.AlignVCenter
            font.pointSize: 10
            color: control.enabled ? "#e6e6e6" : "#808080"
            text: control.editText
            elide: Text.ElideRight
        }
        background: Rectangle {
            implicitWidth: 100
            implicitHeight: 20
            radius: 2
            color: control.hovered ? "#474747" : "#363636"
            border.color: control.activeFocus ? "#4b97d6" : "#1a1a1a"

            Text {
                anchors.right: parent.right
                anchors.rightMargin: 6
                anchors.verticalCenter: parent.verticalCenter
                renderType: Text.NativeRendering
                font.pixelSize: 8
                color: "#a6a6a6"
                text: "\u25bc"
            }
        }
    }
}
