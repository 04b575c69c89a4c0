// SPDX-FileCopyrightText: 2026 Orvane
// SPDX-License-Identifier: GPL-2.0-or-later
#include "host/demo/finejpeg.h"

#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>

#include <jpeglib.h>

namespace PanoHost
{
namespace
{

/** Comes back instead of ending the program. */
struct Errors {
    jpeg_error_mgr manager; // the first: the library knows no more of it
    std::jmp_buf back;
    std::array<char, JMSG_LENGTH_MAX> text;
};

[[noreturn]] void comeBack(j_common_ptr encoder)
{
    auto *const errors = reinterpret_cast<Errors *>(encoder->err);
    errors->manager.format_message(encoder, errors->text.data());
    std::longjmp(errors->back, 1);
}

/** Nothing in here has a destructor: an error jumps out of it. */
bool encode(const uchar *pixels, const QSize &size, qsizetype stride, int quality, Errors &errors,
            uchar **bytes, unsigned long *byteCount)
{
    jpeg_compress_struct encoder;
    encoder.err = jpeg_std_error(&errors.manager);
    errors.manager.error_exit = &comeBack;
    jpeg_create_compress(&encoder);
    if (setjmp(errors.back) != 0) {
        jpeg_destroy_compress(&encoder);
        return false;
    }
    jpeg_mem_dest(&encoder, bytes, byteCount);
    encoder.image_width = static_cast<JDIMENSION>(size.width());
    encoder.image_height = static_cast<JDIMENSION>(size.height());
    encoder.input_components = 3;
    encoder.in_color_space = JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, quality, TRUE);
    // As many samples of brightness as of colours.
    encoder.comp_info[0].h_samp_factor = 1;
    encoder.comp_info[0].v_samp_factor = 1;
    jpeg_start_compress(&encoder, TRUE);
    while (encoder.next_scanline < encoder.image_height) {
        auto *row = const_cast<JSAMPROW>(pixels + encoder.next_scanline * stride);
        jpeg_write_scanlines(&encoder, &row, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    return true;
}

} // namespace

QByteArray fineJpeg(const QImage &picture, int quality)
{
    if (picture.isNull() || std::max(picture.width(), picture.height()) > JPEG_MAX_DIMENSION) {
        throw std::runtime_error("no JPEG file can hold a picture of this size");
    }
    const QImage rgb = picture.convertToFormat(QImage::Format_RGB888);
    Errors errors{};
    uchar *bytes = nullptr;
    unsigned long byteCount = 0;
    if (!encode(rgb.constBits(), rgb.size(), rgb.bytesPerLine(), quality, errors, &bytes,
                &byteCount)) {
        // Nobody can say which of its buffers the encoder still had.
        throw std::runtime_error(errors.text.data());
    }
    QByteArray jpeg(reinterpret_cast<const char *>(bytes), static_cast<int>(byteCount));
    std::free(bytes);
    return jpeg;
}

} // namespace PanoHost
