NOTEPAD Webpage.ini
