vorlane-console: The install folder FOLDER/data/vorlane can't be written: Vorlane.ini is not a file
