// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.2
import QtQuick.Controls 1.1 as Controls
import QtQuick.Controls.Styles 1.1

Controls.Button {
    style: ButtonStyle {
        padding {
            top: 0
            bottom: 0
            left: 8
            right: 8
        }
        label: Text {
            renderType: Text.NativeRendering
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.pointSize: 10
            color: control.enabled ? "#e6e6e6" : "#808080"
            text: control.text
        }
        background: Rectangle {
            implicitHeight: 20
            radius: 2
            border.color: control.activeFocus ? "#4b97d6" : "#1a1a1a"
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: control.pressed ? "#2b2b2b" : control.hovered ? "#6a6a6a" : "#575757"
                }
                GradientStop {
                    position: 1
                    color: control.pressed ? "#363636" : control.hovered ? "#525252" : "#3f3f3f"
                }
            }
        }
    }
}
