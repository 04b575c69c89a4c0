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
            color: "black"
            text: control.text
        }
        background: Rectangle {
            implicitHeight: 20
            border.color: "white"
            gradient: Gradient {
                GradientStop {
                    position: 0
                    color: control.hovered ? Qt.rgba(0.59, 0.59, 0.59, 1) : Qt.rgba(0.35, 0.35, 0.35, 1)
                }
                GradientStop {
                    position: 1
                    color: control.hovered ? Qt.rgba(0.47, 0.47, 0.47, 1) : Qt.rgba(0.23, 0.23, 0.23, 1)
                }
            }
        }
    }
}
