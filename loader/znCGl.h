#ifndef LOADER_ZNCGL_H
#define LOADER_ZNCGL_H

#include <GLES2/gl2.h>
#include <string>

// The functions of OpenGL ES 2 that drawing needs, asked of the driver at run time: so a machine without the libraries
// gets a line that says which, instead of a program that doesn't start.
#define PETREL_GL_FUNCTIONS(GL)                                                                                        \
    GL(PFNGLACTIVETEXTUREPROC, ActiveTexture)                                                                          \
    GL(PFNGLATTACHSHADERPROC, AttachShader)                                                                            \
    GL(PFNGLBINDATTRIBLOCATIONPROC, BindAttribLocation)                                                                \
    GL(PFNGLBINDBUFFERPROC, BindBuffer)                                                                                \
    GL(PFNGLBINDFRAMEBUFFERPROC, BindFramebuffer)                                                                      \
    GL(PFNGLBINDTEXTUREPROC, BindTexture)                                                                              \
    GL(PFNGLBLENDEQUATIONSEPARATEPROC, BlendEquationSeparate)                                                          \
    GL(PFNGLBLENDFUNCSEPARATEPROC, BlendFuncSeparate)                                                                  \
    GL(PFNGLBUFFERDATAPROC, BufferData)                                                                                \
    GL(PFNGLCHECKFRAMEBUFFERSTATUSPROC, CheckFramebufferStatus)                                                        \
    GL(PFNGLCLEARPROC, Clear)                                                                                          \
    GL(PFNGLCLEARCOLORPROC, ClearColor)                                                                                \
    GL(PFNGLCOMPILESHADERPROC, CompileShader)                                                                          \
    GL(PFNGLCREATEPROGRAMPROC, CreateProgram)                                                                          \
    GL(PFNGLCREATESHADERPROC, CreateShader)                                                                            \
    GL(PFNGLDELETEBUFFERSPROC, DeleteBuffers)                                                                          \
    GL(PFNGLDELETEFRAMEBUFFERSPROC, DeleteFramebuffers)                                                                \
    GL(PFNGLDELETEPROGRAMPROC, DeleteProgram)                                                                          \
    GL(PFNGLDELETESHADERPROC, DeleteShader)                                                                            \
    GL(PFNGLDELETETEXTURESPROC, DeleteTextures)                                                                        \
    GL(PFNGLDISABLEPROC, Disable)                                                                                      \
    GL(PFNGLDRAWELEMENTSPROC, DrawElements)                                                                            \
    GL(PFNGLENABLEPROC, Enable)                                                                                        \
    GL(PFNGLENABLEVERTEXATTRIBARRAYPROC, EnableVertexAttribArray)                                                      \
    GL(PFNGLFLUSHPROC, Flush)                                                                                          \
    GL(PFNGLFRAMEBUFFERTEXTURE2DPROC, FramebufferTexture2D)                                                            \
    GL(PFNGLGENBUFFERSPROC, GenBuffers)                                                                                \
    GL(PFNGLGENFRAMEBUFFERSPROC, GenFramebuffers)                                                                      \
    GL(PFNGLGENTEXTURESPROC, GenTextures)                                                                              \
    GL(PFNGLGETERRORPROC, GetError)                                                                                    \
    GL(PFNGLGETINTEGERVPROC, GetIntegerv)                                                                              \
    GL(PFNGLGETPROGRAMIVPROC, GetProgramiv)                                                                            \
    GL(PFNGLGETSTRINGPROC, GetString)                                                                                  \
    GL(PFNGLGETUNIFORMLOCATIONPROC, GetUniformLocation)                                                                \
    GL(PFNGLLINKPROGRAMPROC, LinkProgram)                                                                              \
    GL(PFNGLPIXELSTOREIPROC, PixelStorei)                                                                              \
    GL(PFNGLREADPIXELSPROC, ReadPixels)                                                                                \
    GL(PFNGLSHADERSOURCEPROC, ShaderSource)                                                                            \
    GL(PFNGLTEXIMAGE2DPROC, TexImage2D)                                                                                \
    GL(PFNGLTEXPARAMETERIPROC, TexParameteri)                                                                          \
    GL(PFNGLTEXSUBIMAGE2DPROC, TexSubImage2D)                                                                          \
    GL(PFNGLUNIFORM2FPROC, Uniform2f)                                                                                  \
    GL(PFNGLUSEPROGRAMPROC, UseProgram)                                                                                \
    GL(PFNGLVERTEXATTRIBPOINTERPROC, VertexAttribPointer)                                                              \
    GL(PFNGLVIEWPORTPROC, Viewport)

struct znCGl
{
#define PETREL_GL_MEMBER(Type, Name) Type Name = nullptr;
    PETREL_GL_FUNCTIONS(PETREL_GL_MEMBER)
#undef PETREL_GL_MEMBER

    // Of the context that is current; false with the name of what the driver lacks.
    bool load(std::string& pMissing);
};

#endif
