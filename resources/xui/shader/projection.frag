// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: MIT

// Shows an equirectangular panorama in another projection while the user turns and bends it.
// For a ShaderEffect: `source` is the panorama, angles are radians, and `aspect` is the height of
// the item divided by its width.
#ifdef GL_ES
precision highp float;
#endif

uniform sampler2D source;
uniform float qt_Opacity;
uniform float aspect;
uniform float yaw;         // to the right
uniform float pitch;       // upward
uniform float roll;        // clockwise
uniform float fieldOfView; // across the item
uniform int projection;    // 0 rectilinear, 1 cylindrical, 2 equirectangular, 3 fisheye, 4 stereographic
varying vec2 qt_TexCoord0;

const float pi = 3.14159265358979;

// The direction that a point of the item shows; zero where the projection shows nothing.
// Axes: x right, y up, z forward. The point is (0, 0) in the middle and +-1 at the left and right.
vec3 direction(vec2 point)
{
    float halfView = fieldOfView / 2.0;
    if (projection == 0) {
        return normalize(vec3(point * tan(min(halfView, 1.55)), 1.0));
    }
    if (projection == 1) {
        return normalize(vec3(sin(point.x * halfView), point.y * halfView, cos(point.x * halfView)));
    }
    if (projection == 2) {
        vec2 angle = point * halfView;
        if (abs(angle.x) > pi || abs(angle.y) > pi / 2.0) {
            return vec3(0.0);
        }
        return vec3(sin(angle.x) * cos(angle.y), sin(angle.y), cos(angle.x) * cos(angle.y));
    }
    float radius = length(point);
    float fromAxis = radius * halfView;
    if (projection == 4) {
        fromAxis = 2.0 * atan(radius * tan(min(halfView, 3.1) / 2.0));
    }
    if (fromAxis > pi) {
        return vec3(0.0);
    }
    vec2 side = radius > 0.0 ? point / radius : vec2(0.0);
    return vec3(side * sin(fromAxis), cos(fromAxis));
}

vec2 turn(vec2 v, float angle)
{
    return vec2(v.x * cos(angle) - v.y * sin(angle), v.x * sin(angle) + v.y * cos(angle));
}

void main()
{
    vec2 point = (qt_TexCoord0 * 2.0 - 1.0) * vec2(1.0, -aspect);
    vec3 d = direction(turn(point, roll));
    if (dot(d, d) == 0.0) {
        gl_FragColor = vec4(0.0);
        return;
    }
    d.zy = turn(d.zy, pitch);
    float longitude = atan(d.x, d.z) + yaw;
    float latitude = asin(clamp(d.y, -1.0, 1.0));
    vec2 place = vec2(fract(longitude / (2.0 * pi) + 0.5), 0.5 - latitude / pi);
    gl_FragColor = texture2D(source, place) * qt_Opacity;
}
