// MusicCapture::run where the build has no sound server client: nothing is ever heard.
#include "MusicCapture.h"

void MusicCapture::run() {}
