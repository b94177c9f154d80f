select CustomerID, Company, ContactName, Notes
from Customers
where instr(Notes, 'O''Brien') > 0 or (instr(Notes, '5') > 0 and instr(Notes, 'new shop') = 0)
order by CustomerID
