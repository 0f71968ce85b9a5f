NOTEPAD Profile Results.txt
