#ifndef ZNCORE_ZNPOINTF_H
#define ZNCORE_ZNPOINTF_H

// Two floats: a vertex position or a texture coordinate, as it stands in a vertex stream.
struct znPointF
{
    float mX;
    float mY;
};

#endif
