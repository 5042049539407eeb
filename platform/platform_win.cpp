// Win32 implementation of Platform: exactly the kernel32, user32 and shell32 calls the panel is
// specified with. Free of Qt so that it can be checked with a cross compiler on its own.
#include "Platform.h"

#include <windows.h>

#include <shellapi.h> // after windows.h, which it needs

namespace Platform {

namespace {
MessageBoxHook messageBoxHook = nullptr;
}

MutexHandle createMutex(const std::wstring& name, bool* alreadyExists)
{
    HANDLE handle = CreateMutexW(nullptr, FALSE, name.c_str());
    const DWORD error = GetLastError();
    if (alreadyExists)
        *alreadyExists = (error == ERROR_ALREADY_EXISTS);
    return handle;
}

void closeHandle(MutexHandle handle)
{
    if (handle)
        CloseHandle(static_cast<HANDLE>(handle));
}

bool mutexExists(const std::wstring& name)
{
    bool exists = false;
    closeHandle(createMutex(name, &exists));
    return exists;
}

WindowHandle findWindow(const std::wstring& title)
{
    return reinterpret_cast<WindowHandle>(FindWindowW(nullptr, title.c_str()));
}

void sendMessage(WindowHandle window, unsigned message, std::uintptr_t wParam, std::intptr_t lParam)
{
    SendMessageW(reinterpret_cast<HWND>(window), message, static_cast<WPARAM>(wParam),
                 static_cast<LPARAM>(lParam));
}

void* listenForMessages(const std::wstring&, MessageHandler, void*)
{
    return nullptr;
}

void stopListening(void*) {}

std::wstring executablePath()
{
    wchar_t buffer[260] = {};
    const DWORD length = GetModuleFileNameW(nullptr, buffer, 260);
    return std::wstring(buffer, length);
}

wchar_t pathSeparator()
{
    return L'\\';
}

std::wstring controlExecutableName()
{
    return L"NORVALEX Control.exe";
}

bool launchElevated(const std::wstring& file, const std::wstring& directory)
{
    SHELLEXECUTEINFOW info = {};
    info.cbSize = sizeof(SHELLEXECUTEINFOW);
    info.fMask = SEE_MASK_FLAG_NO_UI;
    info.hwnd = nullptr;
    info.lpVerb = L"runas";
    info.lpFile = file.c_str();
    info.lpParameters = nullptr;
    info.lpDirectory = directory.c_str();
    info.nShow = SW_SHOWNORMAL;
    if (!ShellExecuteExW(&info))
        return false;
    // No process handle was asked for, so the handle is null and the wait returns at once.
    WaitForSingleObject(info.hProcess, 3000);
    CloseHandle(info.hProcess);
    return true;
}

void messageBox(const std::wstring& text, const std::wstring& caption, MessageIcon icon)
{
    if (messageBoxHook) {
        messageBoxHook(text, caption, icon);
        return;
    }
    const UINT type = icon == MessageIcon::Exclamation ? MB_ICONEXCLAMATION : MB_ICONINFORMATION;
    MessageBoxW(nullptr, text.c_str(), caption.c_str(), type);
}

void setMessageBoxHook(MessageBoxHook hook)
{
    messageBoxHook = hook;
}

void loadFontConfiguration() {}

static_assert(sizeof(SHELLEXECUTEINFOW) == 112, "SHELLEXECUTEINFOW on 64-bit Windows");

} // namespace Platform
