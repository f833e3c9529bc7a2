#pragma once

namespace clinorama::forms {

// Unwinds a handler whose page was unloaded while it waited. It is thrown by the wait and caught
// where handlers are run; it is no std::exception, so that no page catches it with its failures.
struct PageEnded {};

}  // namespace clinorama::forms
