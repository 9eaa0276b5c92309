// The diagnostic trace: one line a call, indented by call depth, so that the log of a print dialog
// reads as a call tree.
#pragma once

#include <initializer_list>
#include <string_view>

#include "platform/LogSink.h"
#include "platform/Object.h"
#include "platform/Printf.h"

namespace kwopde {

/// Writes the entry line of a call at the caller's depth; what follows is one level deeper. `self`
/// is the object whose method runs, and `format` is filled in as `appendPrintf` does it.
///
/// The object's description becomes part of the format before the arguments are filled in, so a "%"
/// in it (a PPD text can hold one) acts as a conversion.
void PDEProlog(const Object *self, std::string_view format,
               std::initializer_list<PrintfArgument> arguments = {});

/// Writes the exit line, back at the depth of the entry line. Every path out of a call writes
/// exactly one.
void PDEEpilog(const Object *self, std::string_view format,
               std::initializer_list<PrintfArgument> arguments = {});

/// Writes a free line at the present depth; without an object it is not indented.
void PDELog(const Object *self, std::string_view format,
            std::initializer_list<PrintfArgument> arguments = {});

/// Sends lines to `sink` from now on; borrowed. Null stands for the system log. Returns the sink
/// before it, null again for the system log.
LogSink *setTraceSink(LogSink *sink);

}  // namespace kwopde
