NOTEPAD TrackEditor.ini
