select CustomerID, Company, City
from Customers
where instr(lower(Company), 'garten') > 0 or City = 'Leipzig'
order by Company, CustomerID
