NOTEPAD C:\A Quillon PRO\Programs\DTN_20260314.ppp
