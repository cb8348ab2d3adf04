#pragma once

// Stand-in for the SDK's cancel exception: what code above a user interaction
// catches to tell a cancel from a failure.
class OdEdCancel
{
public:
    const char* description() const { return "Cancelled by the user"; }
};
