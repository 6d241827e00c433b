#ifndef SAMPLE_RETURN_SAMPLEGUI_H
#define SAMPLE_RETURN_SAMPLEGUI_H

/** True when the command line asks for the desktop application (--gui). */
bool sampleGuiWanted(int argc, char *argv[]);

/**
 * Runs the desktop application. Options after --gui: --open FILE shows a
 * saved return instead of the example; --form t1|s4 picks the first page;
 * --save FILE writes the shown return; --grab FILE.png renders the window
 * off screen to a picture and exits instead of running.
 */
int runSampleGui(int argc, char *argv[]);

#endif
