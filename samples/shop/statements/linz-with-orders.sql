select c.Company, o.OrderID
from Customers c
  left join Orders o on o.CustomerID = c.CustomerID
where c.City = 'Linz'
order by c.Company nulls last
