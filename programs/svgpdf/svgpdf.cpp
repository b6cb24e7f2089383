// SPDX-License-Identifier: Apache-2.0
// Draws an SVG on the only page of a PDF:
//
//     kvprint-svgpdf [WIDTH HEIGHT] <drawing.svg >page.pdf
//
// WIDTH and HEIGHT are in px of 1/96 inch; without them, the page is as large as what the SVG draws. The
// first line of the output is the size of the page in points. The PDF follows unless a side of the page is
// shorter than 1 point or longer than a PDF page can be. The exit status is 1 if the SVG is
// damaged, and 2 if it is too large or too complex to be drawn; the reason is written to standard error.
//
// kvprint runs this program when it opens an SVG. References to files and to the network are not loaded: the
// library resolves them against the location of the SVG, and it is given none. The process is in a sandbox,
// which limits time and memory too, because an SVG of a few lines can need any amount of both.
#include <programs/conversion/Conversion.h>
#include <programs/sandbox/Sandbox.h>

#include <librsvg/rsvg.h>

#include <cairo-pdf.h>

#include <algorithm>
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

using programs::ConversionError;

constexpr double pointsPerPixel = 72.0 / 96.0;
constexpr double pointsPerInch = 72.0;
constexpr double maxPageSide = 14400.0;
/// Masks and filters are drawn as pixels, in dots per inch: twice what label printers print.
constexpr double rasterResolution = 600.0;
/// The max size of such a picture, in pixels and in pixels of one side.
constexpr double maxRasterPixels = 16.0 * 1024 * 1024;
constexpr double maxRasterSide = 32000.0;

template<auto function>
struct Releaser {
    template<typename T>
    void operator()(T *object) const
    {
        function(object);
    }
};
using Error = std::unique_ptr<GError, Releaser<g_error_free>>;
using Handle = std::unique_ptr<RsvgHandle, Releaser<g_object_unref>>;
using Stream = std::unique_ptr<GInputStream, Releaser<g_object_unref>>;
using Surface = std::unique_ptr<cairo_surface_t, Releaser<cairo_surface_destroy>>;
using Context = std::unique_ptr<cairo_t, Releaser<cairo_destroy>>;

/// The size of a drawing in px, and whether it is what the SVG draws instead of what it states.
struct DrawingSize {
    double width = 0.0;
    double height = 0.0;
    bool isWhatIsDrawn = false;
};

/// What the process may use. Fonts are files of the system.
programs::SandboxRules rules()
{
    return {.seconds = 10, .bytes = std::size_t{1} << 30U, .readableFolders = programs::fontFolders()};
}

/// Makes the error of the program from that of a library, which is released.
ConversionError conversionError(ConversionError::Status status, GError *error)
{
    const Error owned(error);
    return {status, owned ? owned->message : "unknown error"};
}

void check(cairo_status_t status)
{
    if (status != CAIRO_STATUS_SUCCESS)
        throw ConversionError(ConversionError::TooLarge, cairo_status_to_string(status));
}

Handle load(const std::vector<unsigned char> &svg)
{
    const Stream stream(
        g_memory_input_stream_new_from_data(svg.data(), static_cast<gssize>(svg.size()), nullptr));
    GError *error = nullptr;
    // "Unlimited" allows the long attributes that pictures need.
    Handle handle(
        rsvg_handle_new_from_stream_sync(stream.get(), nullptr, RSVG_HANDLE_FLAG_UNLIMITED, nullptr, &error));
    if (!handle)
        throw conversionError(ConversionError::Damaged, error);
    rsvg_handle_set_dpi(handle.get(), 96.0);
    return handle;
}

DrawingSize sizeOfWhatIsDrawn(RsvgHandle *handle)
{
    RsvgRectangle ink = {};
    GError *error = nullptr;
    if (!rsvg_handle_get_geometry_for_element(handle, nullptr, &ink, nullptr, &error))
        throw conversionError(ConversionError::TooLarge, error);
    return {ink.width, ink.height, true};
}

void draw(RsvgHandle *handle, const DrawingSize &size, cairo_t *context)
{
    const RsvgRectangle viewport = {0.0, 0.0, size.width, size.height};
    GError *error = nullptr;
    const gboolean isDrawn = size.isWhatIsDrawn
                                 ? rsvg_handle_render_element(handle, context, nullptr, &viewport, &error)
                                 : rsvg_handle_render_document(handle, context, &viewport, &error);
    if (!isDrawn)
        throw conversionError(ConversionError::TooLarge, error);
    check(cairo_status(context));
}

/// How many pixels there are to a point where something is drawn as pixels.
double rasterScale(double width, double height)
{
    return std::min({rasterResolution / pointsPerInch, std::sqrt(maxRasterPixels / (width * height)),
                     maxRasterSide / std::max(width, height)});
}

cairo_status_t writeOutput(void *, const unsigned char *data, unsigned int length)
{
    return std::fwrite(data, 1, length, stdout) == length ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

void writePdf(RsvgHandle *handle, const DrawingSize &size)
{
    const double width = size.width * pointsPerPixel;
    const double height = size.height * pointsPerPixel;
    std::printf("%.17g %.17g\n", width, height);
    // Written so that a size that is not a number is no page either.
    if (!(width >= 1.0 && height >= 1.0 && width <= maxPageSide && height <= maxPageSide))
        return;
    // The library draws masks and filters with one pixel to a unit of the surface. On a PDF, a unit is a
    // point: the drawing is recorded at a larger scale, and put on the page at its size.
    const double scale = rasterScale(width, height);
    const cairo_rectangle_t extents = {0.0, 0.0, width * scale, height * scale};
    const Surface recording(cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &extents));
    const Context recorder(cairo_create(recording.get()));
    cairo_scale(recorder.get(), scale * pointsPerPixel, scale * pointsPerPixel);
    draw(handle, size, recorder.get());

    const Surface page(cairo_pdf_surface_create_for_stream(writeOutput, nullptr, width, height));
    cairo_surface_set_fallback_resolution(page.get(), rasterResolution, rasterResolution);
    const Context painter(cairo_create(page.get()));
    cairo_scale(painter.get(), 1.0 / scale, 1.0 / scale);
    cairo_set_source_surface(painter.get(), recording.get(), 0.0, 0.0);
    cairo_paint(painter.get());
    check(cairo_status(painter.get()));
    cairo_surface_finish(page.get());
    check(cairo_surface_status(page.get()));
}

void convert(int argc, char **argv)
{
    // Which variants Chinese, Japanese and Korean glyphs have depends on the user's language.
    std::setlocale(LC_CTYPE, "");
    programs::enterSandbox(rules());
    const std::vector<unsigned char> svg = programs::readStandardInput();
    const Handle handle = load(svg);
    const DrawingSize size = argc == 3
                                 ? DrawingSize{std::strtod(argv[1], nullptr), std::strtod(argv[2], nullptr)}
                                 : sizeOfWhatIsDrawn(handle.get());
    writePdf(handle.get(), size);
    programs::flushStandardOutput();
}

} // namespace

int main(int argc, char **argv)
{
    return programs::runConversion("kvprint-svgpdf", [argc, argv] { convert(argc, argv); });
}
