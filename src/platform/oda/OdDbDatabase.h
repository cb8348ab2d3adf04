#pragma once

// Stand-in for the ODA SDK's drawing database. Only passed by pointer so far;
// its content arrives with the models that read it.
class OdDbDatabase;
