#pragma once

// The operating-system services the panel and the control service need: named mutexes, finding
// another process's window by title and sending it a message, launching the control service,
// message boxes. Wide strings in, plain values out, no Qt types: the Win32 implementation
// (platform_win.cpp) is compiled stand-alone; the POSIX one (platform_posix.cpp) uses QLockFile,
// local sockets and posix_spawn behind the same functions and needs only QtCore, so that the
// headless control service can use it too.

#include <cstdint>
#include <string>

namespace Platform {

using MutexHandle = void*;
using WindowHandle = std::intptr_t;

// Private window messages.
constexpr unsigned kMessageSecondInstance = 0x8101;
constexpr unsigned kMessageQuit = 0x8301;
constexpr unsigned kMessageRaise = 0x8302;
constexpr unsigned kMessageQuitIfOpened = 0x8303;

// ERROR_ALREADY_EXISTS, as GetLastError reports it after CreateMutexW.
constexpr unsigned long kErrorAlreadyExists = 183;

enum class MessageIcon { Exclamation, Information };

// CreateMutexW(null, FALSE, name): returns the handle (null on failure) and tells through
// alreadyExists whether the name existed before (GetLastError() == 183).
MutexHandle createMutex(const std::wstring& name, bool* alreadyExists);
void closeHandle(MutexHandle handle);
// Creates and closes at once: whether some process (this one included) holds the name.
bool mutexExists(const std::wstring& name);

// FindWindowW(null, title): 0 when no window has that title.
WindowHandle findWindow(const std::wstring& title);
// SendMessageW: delivered and handled before it returns; a window that does not answer within a
// bounded time is given up. A null window is accepted and does nothing.
void sendMessage(WindowHandle window, unsigned message, std::uintptr_t wParam,
                 std::intptr_t lParam);

// Receives the messages sent to the window titled `title`. Win32 windows are found by their
// title and receive through nativeEvent, so there it returns null and does nothing.
using MessageHandler = void (*)(void* context, unsigned message, std::uintptr_t wParam,
                                std::intptr_t lParam);
void* listenForMessages(const std::wstring& title, MessageHandler handler, void* context);
void stopListening(void* listener);

// Full path of this process's executable (GetModuleFileNameW with no module).
std::wstring executablePath();
// The directory separator executablePath() uses.
wchar_t pathSeparator();
// File name of the control service inside the panel's own directory.
std::wstring controlExecutableName();
// ShellExecuteExW with the verb "runas", the bare file name and the directory; the returned
// process handle is waited on for at most 3000 ms and closed. Returns success.
bool launchElevated(const std::wstring& file, const std::wstring& directory);

// MessageBoxW with no owner. The hook, when set, shows the box instead: the panel installs one
// on POSIX, where the library itself only writes the text to standard error; tests install
// their own so that nothing modal blocks them.
using MessageBoxHook = void (*)(const std::wstring& text, const std::wstring& caption,
                                MessageIcon icon);
void messageBox(const std::wstring& text, const std::wstring& caption, MessageIcon icon);
void setMessageBoxHook(MessageBoxHook hook);

// Loads the desktop's font configuration (fontconfig's), which the first text the GUI lays out
// would otherwise parse; the panel runs it on a thread of its own while Qt starts. Nothing to do
// on Win32.
void loadFontConfiguration();

} // namespace Platform
