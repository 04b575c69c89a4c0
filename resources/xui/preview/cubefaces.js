.pragma library
// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Geometry of a cube seen from its centre. Axes: x right, y down, z forward. Angles in degrees:
// yaw grows to the right, pitch grows upward. The six faces by name, each with the direction that
// its centre lies in.
var faces = [
    { name: "front", yaw: 0, pitch: 0 },
    { name: "right", yaw: 90, pitch: 0 },
    { name: "back", yaw: 180, pitch: 0 },
    { name: "left", yaw: 270, pitch: 0 },
    { name: "up", yaw: 0, pitch: 90 },
    { name: "down", yaw: 0, pitch: -90 }
];

var minFieldOfView = 30;
var maxFieldOfView = 120;

function clamp(value, lowest, highest)
{
    return Math.min(Math.max(value, lowest), highest);
}

/** The same direction with a yaw of at least 0 and below 360. */
function wrapYaw(yaw)
{
    return yaw - 360 * Math.floor(yaw / 360);
}

/** Rows of the matrix that turns world axes into the axes of a viewer looking at (yaw, pitch). */
function viewerAxes(yaw, pitch)
{
    var sy = Math.sin(yaw * Math.PI / 180);
    var cy = Math.cos(yaw * Math.PI / 180);
    var sp = Math.sin(pitch * Math.PI / 180);
    var cp = Math.cos(pitch * Math.PI / 180);
    return [[cy, 0, -sy], [sp * sy, cp, sp * cy], [cp * sy, -sp, cp * cy]];
}

function turn(axes, vector)
{
    return axes.map(function (axis) {
        return axis[0] * vector[0] + axis[1] * vector[1] + axis[2] * vector[2];
    });
}

/**
 * Where a face lies for a viewer: the viewer's coordinates of its top left corner and of its two
 * sides, for a cube whose faces are 2 wide.
 */
function placeFace(face, yaw, pitch)
{
    var viewer = viewerAxes(yaw, pitch);
    var sides = viewerAxes(face.yaw, face.pitch);
    var right = turn(viewer, sides[0]);
    var down = turn(viewer, sides[1]);
    var ahead = turn(viewer, sides[2]);
    return {
        corner: [0, 1, 2].map(function (i) { return ahead[i] - right[i] - down[i]; }),
        right: right.map(function (x) { return 2 * x; }),
        down: down.map(function (x) { return 2 * x; })
    };
}

/** Whether any corner of a placed face lies before the viewer. */
function isAhead(place)
{
    var z = place.corner[2];
    var nearest = Math.max(z, z + place.right[2], z + place.down[2], z + place.right[2] + place.down[2]);
    return nearest > 0.001;
}

/**
 * The 16 numbers, row by row, of the matrix that brings an item of the given side length (pixels)
 * to the place of a face in a view of width x height pixels that shows fieldOfView degrees across.
 */
function faceMatrix(place, side, fieldOfView, width, height)
{
    var focal = width / 2 / Math.tan(fieldOfView / 2 * Math.PI / 180);
    var column = function (vector, scale) {
        return [
            (focal * vector[0] + width / 2 * vector[2]) * scale,
            (focal * vector[1] + height / 2 * vector[2]) * scale,
            0,
            vector[2] * scale
        ];
    };
    var u = column(place.right, 1 / side);
    var v = column(place.down, 1 / side);
    var t = column(place.corner, 1);
    return [
        u[0], v[0], 0, t[0],
        u[1], v[1], 0, t[1],
        0, 0, 1, 0,
        u[3], v[3], 0, t[3]
    ];
}
