#!/bin/sh
# The grid's clipboard beside another program's, on a display of its own: system_clipboard_test.sh QT_CLIPBOARD_TESTS
# Ends with 77, which means "left out", where Xvfb or xclip is not installed.
for tool in xvfb-run xclip; do
    if ! command -v "$tool" >/dev/null; then
        echo "LEFT OUT: the clipboard between programs; $tool is not installed"
        exit 77
    fi
done
QT_QPA_PLATFORM=xcb exec xvfb-run -a "$1" --gtest_filter='SystemClipboard.*'
