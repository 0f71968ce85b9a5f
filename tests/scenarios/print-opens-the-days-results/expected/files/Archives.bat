NOTEPAD Todays Results.txt
