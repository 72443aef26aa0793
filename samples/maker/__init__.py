"""What make_samples.py is made of: tables of fighters and scenery, and what turns them into files."""
