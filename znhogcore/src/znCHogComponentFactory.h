#ifndef ZNHOGCORE_SRC_ZNCHOGCOMPONENTFACTORY_H
#define ZNHOGCORE_SRC_ZNCHOGCOMPONENTFACTORY_H

// Adds the component types of the hidden-object core to those of the framework. It takes the framework factory's place.

#include "znappcore/src/znCComponentFactory.h"

class znCHogComponentFactory : public znCComponentFactory
{
public:
    static void create();

protected:
    void componentsRegister() override;

private:
    znCHogComponentFactory() = default;
};

#endif
