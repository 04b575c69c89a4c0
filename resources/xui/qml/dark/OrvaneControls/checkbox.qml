// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1 as Controls
import QtQuick.Controls.Styles 1.1

Controls.CheckBox {
    style: CheckBoxStyle {
        spacing: 6
        label: Text {
            renderType: Text.NativeRendering
            verticalAlignment: Text.AlignVCenter
            font.pointSize: 10
            color: control.enabled ? "#e6e6e6" : "#808080"
            text: control.text
        }
        indicator: Rectangle {
            implicitWidth: 14
            implicitHeight: 14
            radius: 2
            color: control.hovered ? "#474747" : "#363636"
            border.color: control.activeFocus ? "#4b97d6" : "#1a1a1a"

            Rectangle {
                anchors.fill: parent
                anchors.margins: 3
                radius: 1
                visible: control.checkedState !== Qt.Unchecked
                opacity: control.checkedState === Qt.PartiallyChecked ? 0.5 : 1
                color: control.enabled ? "#4b97d6" : "#6a6a6a"
            }
        }
    }
}
