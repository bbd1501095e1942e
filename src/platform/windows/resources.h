#pragma once

// Numbers of what the program carries in its resources.
#define kProgramIcon 1
