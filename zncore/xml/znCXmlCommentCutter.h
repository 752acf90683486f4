#ifndef ZNCORE_XML_ZNCXMLCOMMENTCUTTER_H
#define ZNCORE_XML_ZNCXMLCOMMENTCUTTER_H

#include <string_view>

// Gives the parts of a text that stay when its comments are cut and the two characters backslash and n become one line
// feed. The text must outlive it.
class znCXmlCommentCutter
{
public:
    explicit znCXmlCommentCutter(std::string_view pText);

    // False at the end, and at a comment without its end.
    bool partRead(std::string_view& pOut);
    bool commentOpenGet() const { return mCommentOpen; }
    std::string_view::size_type positionGet() const { return mPosition; } // behind the last part
    // False if the whole text is one part.
    bool neededGet() const { return mComment != std::string_view::npos || mBackslash != std::string_view::npos; }

private:
    bool commentSkip();
    void backslashRead(std::string_view& pOut);

    std::string_view mText;
    std::string_view::size_type mPosition = 0;
    std::string_view::size_type mComment;   // the next one from the position on
    std::string_view::size_type mBackslash; // the next one from the position on
    bool mCommentOpen = false;
};

#endif
