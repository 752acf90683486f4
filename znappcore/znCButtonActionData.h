#ifndef ZNAPPCORE_ZNCBUTTONACTIONDATA_H
#define ZNAPPCORE_ZNCBUTTONACTIONDATA_H

// What a pressed button sends along: the argument of its action and the button itself.

#include <string>

class znIComponent;

struct znCButtonActionData
{
    std::string mParam;              // file name, GUI name or web address; may be empty
    znIComponent* mButton = nullptr; // not owned
};

#endif
