#pragma once

#include <oa/OaApp.h>

namespace ca {

// Stand-in for the drawing application's object: the application object with
// a command line. Through it the library reaches the same services as through
// oa::OaApp.
class CaApp : public oa::OaApp
{
public:
    using oa::OaApp::OaApp;
};

} // namespace ca
