#include "OaApp.h"

namespace oa {

OaApp* OaApp::s_app = nullptr;

} // namespace oa
