#ifndef LIBCONTROL_TOOLS_COMMANDS_H
#define LIBCONTROL_TOOLS_COMMANDS_H

#include "commandline.h"

// One function per tool command; the table that names them is in main.cpp.
namespace Tool {

int roundCommand(Context &ctx);
int amountCommand(Context &ctx);
int percentCommand(Context &ctx);
int addressCommand(Context &ctx);

// Checks and catalogues
int checkCommand(Context &ctx);
int formsCommand(Context &ctx);


// Worksheets and calculators
int postcodeCommand(Context &ctx);
int taxCommand(Context &ctx);

// Form files and outputs
int inspectCommand(Context &ctx);
int diffCommand(Context &ctx);


// Services
int sha1Command(Context &ctx);
int sha256Command(Context &ctx);
int configCommand(Context &ctx);
int serveCommand(Context &ctx);
int httpCommand(Context &ctx);

// Gallery
int galleryCommand(Context &ctx);



} // namespace Tool

#endif
