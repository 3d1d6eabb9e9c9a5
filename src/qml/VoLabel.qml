import QtQuick
import QtQuick.Controls

// A label whose text sits in the middle of its box unless a screen sets verticalAlignment to
// Text.AlignTop or Text.AlignBottom; long texts wrap instead of running out of the box.
Label {
    verticalAlignment: Text.AlignVCenter
    wrapMode: Text.Wrap
}
