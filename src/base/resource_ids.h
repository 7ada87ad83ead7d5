#pragma once
// Identifiers shared by the resource script and the code.

#define IDI_APPLICATION_ICON 100
#define IDI_TRAY_OFF 101
#define IDI_TRAY_ON 102
#define IDI_PIC_QUESTION 103
