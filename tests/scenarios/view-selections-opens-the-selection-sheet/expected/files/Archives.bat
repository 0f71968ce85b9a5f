NOTEPAD C:\A Quillon PRO\Selections\DTN_20260314.pms
