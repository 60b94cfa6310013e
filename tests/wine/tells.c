/* Writes to OUT in the current directory, each ended by a zero: that directory, its arguments, and the beginning of the
 * file that the last of them names. "-window TITLE" shows a window of this title until it is asked to close, "-status N"
 * ends with this status. */
#include <windows.h>

#include <shellapi.h>
#include <stdlib.h>

static void put(HANDLE out, const WCHAR *text)
{
    char bytes[4096];
    DWORD written;
    const int length = WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes, NULL, NULL);
    WriteFile(out, bytes, length, &written, NULL);
}

static void putBeginning(HANDLE out, const WCHAR *name)
{
    char bytes[64];
    DWORD length = 0;
    HANDLE file = CreateFileW(name, GENERIC_READ, FILE_SHARE_READ, NULL, OPEN_EXISTING, 0, NULL);
    if (file != INVALID_HANDLE_VALUE)
        ReadFile(file, bytes, sizeof bytes - 1, &length, NULL);
    bytes[length] = 0;
    WriteFile(out, bytes, length + 1, &length, NULL);
}

static LRESULT CALLBACK onMessage(HWND window, UINT message, WPARAM w, LPARAM l)
{
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcW(window, message, w, l);
}

static void showUntilClosed(const WCHAR *title)
{
    MSG message;
    WNDCLASSW kind = { .lpfnWndProc = onMessage, .lpszClassName = L"Tells" };
    RegisterClassW(&kind);
    CreateWindowW(kind.lpszClassName, title, WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200, 100, NULL, NULL, NULL, NULL);
    while (GetMessageW(&message, NULL, 0, 0) > 0)
        DispatchMessageW(&message);
}

int main(void)
{
    int count, i, status = 0;
    WCHAR directory[1024];
    WCHAR **words = CommandLineToArgvW(GetCommandLineW(), &count);
    HANDLE out = CreateFileW(L"OUT", GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    GetCurrentDirectoryW(1024, directory);
    put(out, directory);
    for (i = 1; i < count; ++i)
        put(out, words[i]);
    putBeginning(out, words[count - 1]);
    CloseHandle(out);
    for (i = 1; i + 1 < count; ++i) {
        if (!lstrcmpW(words[i], L"-window"))
            showUntilClosed(words[i + 1]);
        if (!lstrcmpW(words[i], L"-status"))
            status = _wtoi(words[i + 1]);
    }
    return status;
}
