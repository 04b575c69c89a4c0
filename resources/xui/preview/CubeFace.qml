// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT
import QtQuick 2.3
import "cubefaces.js" as Cube

// One face of the cube, seen from the middle of the cube by a viewer looking at (yaw, pitch).
Image {
    id: cubeFace

    property var face: Cube.faces[0]
    property real yaw: 0
    property real pitch: 0
    property real fieldOfView: 90
    property size viewport: Qt.size(100, 100)

    readonly property var place: Cube.placeFace(face, yaw, pitch)

    width: 512
    height: 512
    smooth: true
    mipmap: true
    asynchronous: true
    fillMode: Image.Stretch
    visible: Cube.isAhead(place)
    transform: Matrix4x4 {
        matrix: Qt.matrix4x4.apply(Qt, Cube.faceMatrix(cubeFace.place, cubeFace.width, cubeFace.fieldOfView,
                                                        cubeFace.viewport.width, cubeFace.viewport.height))
    }
}
