#include "converter/magick.h"

#include "converter/pcx.h"

#include <Magick++.h>

namespace converter {

void startLibrary()
{
    MagickLib::ExceptionInfo exception;
    MagickLib::GetExceptionInfo(&exception);
    MagickLib::InitializeMagickEx(nullptr, MAGICK_OPT_NO_SIGNAL_HANDER, &exception);
    MagickLib::DestroyExceptionInfo(&exception);
    Magick::InitializeMagick(nullptr);
}

void limitLibrary()
{
    MagickLib::SetMagickResourceLimit(MagickLib::PixelsResource, MostPixels);
    MagickLib::SetMagickResourceLimit(MagickLib::DiskResource, 0);
    MagickLib::SetMagickResourceLimit(MagickLib::MapResource, 0);
    MagickLib::SetMagickResourceLimit(MagickLib::ThreadsResource, 1);
}

} // namespace converter
