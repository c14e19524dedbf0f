import QtQuick
import Marrowvale.Toolkit

// A short text to read.
Label {
    required property UITextView outlet

    text: outlet.text
    wrapMode: Text.Wrap
    lineHeight: 1.25
}
