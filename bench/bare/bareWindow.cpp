// The least that shows pictures: decodes the files named on the command line, uploads each as a texture, draws two
// frames of all of them without a display, and ends. The game's start is measured against it.

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <GLES2/gl2.h>
#include <jpeglib.h>
#include <SDL2/SDL.h>
#include <spng.h>
#include <string>
#include <vector>

namespace
{
constexpr int WIDTH = 1366;
constexpr int HEIGHT = 768;
constexpr int FRAMES = 2; // as the game: its first one lies below the fade

struct Picture
{
    GLenum mFormat;
    unsigned mWidth;
    unsigned mHeight;
    std::vector<unsigned char> mPixels;
};

struct Texture
{
    GLuint mName;
    float mRight; // the centred picture's edges on the screen, of 1
    float mTop;
};

[[noreturn]] void fail(const std::string& pWhat)
{
    std::fprintf(stderr, "bareWindow: %s\n", pWhat.c_str());
    std::exit(1);
}

std::vector<unsigned char> fileRead(const char* pPath)
{
    std::FILE* file = std::fopen(pPath, "rb");
    if (file == nullptr)
        fail(std::string("can't open ") + pPath);
    std::fseek(file, 0, SEEK_END);
    std::vector<unsigned char> bytes(static_cast<size_t>(std::ftell(file)));
    std::rewind(file);
    if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size())
        fail(std::string("can't read ") + pPath);
    std::fclose(file);
    return bytes;
}

Picture pngDecode(const std::vector<unsigned char>& pBytes)
{
    spng_ctx* context = spng_ctx_new(0);
    spng_set_png_buffer(context, pBytes.data(), pBytes.size());
    spng_ihdr header;
    size_t size = 0;
    if (spng_get_ihdr(context, &header) != 0 || spng_decoded_image_size(context, SPNG_FMT_RGBA8, &size) != 0)
        fail("no PNG");
    Picture picture{GL_RGBA, header.width, header.height, std::vector<unsigned char>(size)};
    if (spng_decode_image(context, picture.mPixels.data(), size, SPNG_FMT_RGBA8, SPNG_DECODE_TRNS) != 0)
        fail("broken PNG");
    spng_ctx_free(context);
    return picture;
}

Picture jpegDecode(const std::vector<unsigned char>& pBytes)
{
    jpeg_decompress_struct decoder;
    jpeg_error_mgr errors;
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_mem_src(&decoder, pBytes.data(), pBytes.size());
    jpeg_read_header(&decoder, TRUE);
    decoder.out_color_space = JCS_RGB;
    jpeg_start_decompress(&decoder);
    Picture picture{GL_RGB, decoder.output_width, decoder.output_height, {}};
    const size_t pitch = picture.mWidth * 3u;
    picture.mPixels.resize(pitch * picture.mHeight);
    while (decoder.output_scanline < decoder.output_height)
    {
        JSAMPROW row = picture.mPixels.data() + pitch * decoder.output_scanline;
        jpeg_read_scanlines(&decoder, &row, 1);
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
    return picture;
}

GLuint shaderCompile(GLenum pKind, const char* pSource)
{
    const GLuint shader = glCreateShader(pKind);
    glShaderSource(shader, 1, &pSource, nullptr);
    glCompileShader(shader);
    return shader;
}

void programUse()
{
    const GLuint program = glCreateProgram();
    glAttachShader(program, shaderCompile(GL_VERTEX_SHADER, "attribute vec4 v; varying vec2 t; void main() { t = v.zw; "
                                                            "gl_Position = vec4(v.xy, 0.0, 1.0); }"));
    glAttachShader(program,
                   shaderCompile(GL_FRAGMENT_SHADER, "precision mediump float; varying vec2 t; uniform sampler2D s; "
                                                     "void main() { gl_FragColor = texture2D(s, t); }"));
    glBindAttribLocation(program, 0, "v");
    glLinkProgram(program);
    glUseProgram(program);
}

Texture pictureLoad(const char* pPath)
{
    const std::vector<unsigned char> bytes = fileRead(pPath);
    const Picture picture = bytes.size() > 1 && bytes[0] == 0xFF ? jpegDecode(bytes) : pngDecode(bytes);
    GLuint texture = 0;
    glGenTextures(1, &texture);
    glBindTexture(GL_TEXTURE_2D, texture);
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(picture.mFormat), static_cast<GLsizei>(picture.mWidth),
                 static_cast<GLsizei>(picture.mHeight), 0, picture.mFormat, GL_UNSIGNED_BYTE, picture.mPixels.data());
    return {texture, static_cast<float>(picture.mWidth) / WIDTH, static_cast<float>(picture.mHeight) / HEIGHT};
}

void textureDraw(const Texture& pTexture)
{
    const float x = pTexture.mRight;
    const float y = pTexture.mTop;
    const float corners[] = {-x, y, 0, 0, -x, -y, 0, 1, x, y, 1, 0, x, -y, 1, 1};
    glBindTexture(GL_TEXTURE_2D, pTexture.mName);
    glVertexAttribPointer(0, 4, GL_FLOAT, GL_FALSE, 0, corners);
    glEnableVertexAttribArray(0);
    glDrawArrays(GL_TRIANGLE_STRIP, 0, 4);
}

void frameBufferMake()
{
    GLuint names[2];
    glGenFramebuffers(1, &names[0]);
    glBindFramebuffer(GL_FRAMEBUFFER, names[0]);
    glGenTextures(1, &names[1]);
    glBindTexture(GL_TEXTURE_2D, names[1]);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, WIDTH, HEIGHT, 0, GL_RGBA, GL_UNSIGNED_BYTE, nullptr);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, names[1], 0);
    glViewport(0, 0, WIDTH, HEIGHT);
}
} // namespace

int main(int pCount, char** pArguments)
{
    SDL_SetHint(SDL_HINT_VIDEODRIVER, "offscreen");
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        fail(SDL_GetError());
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_PROFILE_MASK, SDL_GL_CONTEXT_PROFILE_ES);
    SDL_GL_SetAttribute(SDL_GL_CONTEXT_MAJOR_VERSION, 2);
    SDL_Window* window = SDL_CreateWindow("bare", 0, 0, WIDTH, HEIGHT, SDL_WINDOW_OPENGL);
    SDL_GLContext context = window != nullptr ? SDL_GL_CreateContext(window) : nullptr;
    if (context == nullptr)
        fail(SDL_GetError());
    frameBufferMake();
    programUse();
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    std::vector<Texture> textures;
    for (int i = 1; i < pCount; ++i)
        textures.push_back(pictureLoad(pArguments[i]));
    for (int i = 0; i < FRAMES; ++i)
    {
        glClear(GL_COLOR_BUFFER_BIT);
        for (const Texture& texture : textures)
            textureDraw(texture);
        glFinish();
    }
    SDL_GL_DeleteContext(context);
    SDL_DestroyWindow(window);
    SDL_Quit();
    return 0;
}
