#include "loader/znCGl.h"

#include <SDL.h>

bool znCGl::load(std::string& pMissing)
{
#define PETREL_GL_LOAD(Type, Name)                                                                                     \
    Name = reinterpret_cast<Type>(SDL_GL_GetProcAddress("gl" #Name));                                                  \
    if (Name == nullptr)                                                                                               \
        pMissing = "gl" #Name;
    PETREL_GL_FUNCTIONS(PETREL_GL_LOAD)
#undef PETREL_GL_LOAD
    return pMissing.empty();
}
