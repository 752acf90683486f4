#ifndef MEDIA_IMPL_ZNNDRAWTABLE_H
#define MEDIA_IMPL_ZNNDRAWTABLE_H

// The loader's drawing table for the other classes of this folder; znNGraphics binds it.

#include "zncore/impl/platform/s3eExtensions.h"

namespace znNDrawTable
{
// Null outside znNGraphics::initialise() and terminate(), and when the loader has none.
const s3eDraw* get();
} // namespace znNDrawTable

#endif
